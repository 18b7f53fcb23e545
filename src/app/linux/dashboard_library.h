// Everything of the application that needs Qt Quick. It lies in a library of its own, which is loaded when
// somebody wants to see the dashboard for the first time: until then the program is little more than its
// monitor.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QPoint>

#include "app/dashboard_painter.h"
#include "app/popover.h"
#include "ui/view/appearance.h"

namespace quelby::app {

enum class PopoverForm {
    atTheItem, // frameless, gone with a press elsewhere
    ordinary,  // a window as any other, for desktops without a tray
};

// The dashboard in a window of its own.
class DashboardWindow : public Popover {
public:
    // Where the item was pressed, in pixels of the screen; nothing where that is not known.
    virtual void setItemPlace(std::optional<QPoint> place) = 0;

    virtual void setForm(PopoverForm form) = 0;

    // Whether the press that closed the popover is the one that now asks to open it again.
    [[nodiscard]] virtual bool closedByThisPress(std::optional<QPoint> place) const = 0;

    // The desktop likes its programs otherwise now.
    virtual void appearanceChanged() = 0;
};

// What the window is about, and what it asks of the program. The clock outlives it.
struct DashboardWindowParts {
    std::shared_ptr<PowerMonitor> monitor;
    Clock* clock = nullptr;
    std::function<void()> quit;
    std::function<void()> openBatterySettings;
    std::function<Appearance()> appearance;
    std::function<void()> ordinaryClosed; // the window of the ordinary form was closed by its frame
};

class DashboardLibrary : public DashboardPainter {
public:
    [[nodiscard]] virtual std::unique_ptr<DashboardWindow> makeWindow(DashboardWindowParts parts) = 0;
};

// From the file beside the program, which stays loaded then. Null where it is missing, as it is in a damaged
// installation only.
[[nodiscard]] std::unique_ptr<DashboardLibrary> loadDashboardLibrary();

} // namespace quelby::app
