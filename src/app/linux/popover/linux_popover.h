#pragma once

#include <chrono>
#include <memory>
#include <optional>

#include <QTimer>

#include "app/linux/popover/closing_press.h"
#include "app/linux/popover/opening_press.h"
#include "app/linux/popover/quick_library.h"
#include "app/linux/session/window_system.h"

namespace quelby::app {

// The dashboard on a Linux desktop. Its window, with all that the window needs, is loaded and made when it is
// shown, and given back some time after it was last closed; what has to be remembered meanwhile is here.
class LinuxPopover final : public Popover {
public:
    // Asked before anything is loaded: whether this program ends now, so that a newer one takes its place.
    using GivesWay = std::function<bool()>;

    LinuxPopover(PopoverParts parts, GivesWay givesWay);
    LinuxPopover(const LinuxPopover&) = delete;
    LinuxPopover& operator=(const LinuxPopover&) = delete;
    ~LinuxPopover() override;

    [[nodiscard]] bool isShown() const override;
    void show() override;
    void showSettings() override;
    void close() override;

    // The item was pressed. The place is as its host tells it; nothing from hosts that are known to mean
    // something else. False for the press that has already closed the popover from outside, and for the rest of
    // the double press that opened it: nothing is to follow from these.
    [[nodiscard]] bool itemPressed(std::optional<QPoint> told, std::chrono::milliseconds doublePress);

    void setForm(PopoverForm form);

    // The desktop likes its programs otherwise now.
    void appearanceChanged();

    // Something else is shown where the windows were; a popover would stand there alone.
    void viewChanged();

private:
    // Whether there is a window now, and whether there is what it is made with.
    [[nodiscard]] bool make();
    [[nodiscard]] bool load();

    void leave();
    void giveBack();
    void goneElsewhere(std::optional<QPoint> pointer);

    PopoverParts parts_;
    GivesWay givesWay_;
    PopoverForm form_ = PopoverForm::atTheItem;
    std::optional<WindowSystem> system_; // found out when it is first wanted
    ItemPress itemPress_;
    ClosingPress closingPress_;
    OpeningPress openingPress_;
    std::unique_ptr<QuickLibrary> library_;   // none before the first showing
    std::unique_ptr<DashboardWindow> window_; // none while it is not needed
    double shownTextScale_ = 1;               // of the window
    QTimer givingBack_;
};

} // namespace quelby::app
