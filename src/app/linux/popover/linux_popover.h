#pragma once

#include <memory>
#include <optional>

#include <QTimer>

#include "app/linux/popover/closing_press.h"
#include "app/linux/popover/quick_library.h"

namespace quelby::app {

// The dashboard on a Linux desktop. Its window, with all that the window needs, is loaded and made when it is
// shown, and given back some time after it was last closed; what has to be remembered meanwhile is here.
class LinuxPopover final : public Popover {
public:
    explicit LinuxPopover(PopoverParts parts);
    LinuxPopover(const LinuxPopover&) = delete;
    LinuxPopover& operator=(const LinuxPopover&) = delete;
    ~LinuxPopover() override;

    [[nodiscard]] bool isShown() const override;
    void show() override;
    void showSettings() override;
    void close() override;

    // Where the item was pressed, in pixels of the screen; nothing where that is not known.
    void setItemPlace(std::optional<QPoint> place) { itemPlace_ = place; }

    void setForm(PopoverForm form);

    // Whether the press of the item, told of now, is the one that has already closed the popover from
    // outside. To be asked once for each press.
    [[nodiscard]] bool wasClosedByThisPress(std::optional<QPoint> place);

    // The desktop likes its programs otherwise now.
    void appearanceChanged();

private:
    // Whether there is a window now.
    [[nodiscard]] bool make();

    void leave();
    void giveBack();

    PopoverParts parts_;
    PopoverForm form_ = PopoverForm::atTheItem;
    std::optional<QPoint> itemPlace_;
    ClosingPress closingPress_;
    std::unique_ptr<QuickLibrary> library_;   // none before the first showing
    std::unique_ptr<DashboardWindow> window_; // none while it is not needed
    double shownTextScale_ = 1;               // of the window
    QTimer givingBack_;
};

} // namespace quelby::app
