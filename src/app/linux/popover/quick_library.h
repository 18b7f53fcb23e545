// Everything of the application that needs Qt Quick. It lies in a library of its own, which is loaded when
// somebody wants to see the dashboard for the first time.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QPoint>

#include "app/linux/popover/popover_place.h"
#include "app/picture_painter.h"
#include "app/popover.h"
#include "ui/view/appearance.h"

namespace quelby::app {

enum class PopoverForm {
    atTheItem, // frameless, gone with a press elsewhere
    ordinary,  // a window as any other, for desktops without a tray
};

// The dashboard in a window of its own.
class DashboardWindow {
public:
    // What happens to the window. It decides nothing by itself: whoever hears of it hides the window.
    struct Listener {
        std::function<void()> left; // by Escape, or by a press that nobody else is told of

        // A person went elsewhere, by a press outside that others are told of as well, or with the keyboard.
        // The pointer's place in pixels, where the display server knows it.
        std::function<void(std::optional<QPoint> pointer)> wentElsewhere;

        std::function<void()> closedByFrame;

        // Where the pointer was at the press of the item, in pixels, if that was not known before.
        std::function<void(QPoint pointer)> itemFound;
    };

    virtual ~DashboardWindow() = default;

    [[nodiscard]] virtual bool isShown() const = 0;

    // In front of everything else and with the keyboard, at the item that was pressed: the cards the first
    // time, later the side that was shown last.
    virtual void show(const ItemPress& press) = 0;

    // The settings in place of the cards.
    virtual void showSettings() = 0;

    virtual void hide() = 0;

    virtual void setAppearance(Appearance appearance) = 0;
};

// What the window is about, and what it asks of the program.
struct PopoverParts {
    std::shared_ptr<PowerMonitor> monitor;
    Ref<Clock> clock; // outlives the window
    std::function<void()> quit;
    std::function<void()> openBatterySettings;
    std::function<Appearance()> appearance;
};

class QuickLibrary : public PicturePainter {
public:
    [[nodiscard]] virtual std::unique_ptr<DashboardWindow>
    makeWindow(const PopoverParts& parts, PopoverForm form, DashboardWindow::Listener listener) = 0;
};

// The problem is that it cannot be loaded, or is of another version.
[[nodiscard]] Result<std::unique_ptr<QuickLibrary>> loadQuickLibrary();

} // namespace quelby::app
