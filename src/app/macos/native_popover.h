#pragma once

#include <functional>
#include <memory>

#include "app/macos/appkit_names.h"

namespace quelby::app {

struct NativePopoverListener {
    std::function<void()> closed;            // each time, whoever closed it
    std::function<void()> appearanceChanged; // of its background, which may now be dark, or no longer
};

// The system's popover below the status item, with an empty view to put the dashboard into. The system closes
// it when a person clicks elsewhere.
class NativePopover {
public:
    // The button outlives the popover; without one it never shows.
    NativePopover(NSStatusBarButton* button, NativePopoverListener listener);
    NativePopover(const NativePopover&) = delete;
    NativePopover& operator=(const NativePopover&) = delete;
    ~NativePopover();

    // The popover's own, as large as the dashboard.
    [[nodiscard]] NSView* hostView() const;

    // Whether anything has been put into the view.
    [[nodiscard]] bool holdsContent() const;

    // Whether its background is dark, which may be otherwise than in the system's windows.
    [[nodiscard]] bool isDark() const;

    [[nodiscard]] bool isShown() const;

    // In front, and with the keyboard. Whether it is shown: it cannot be where the menu bar has no room for the
    // button.
    [[nodiscard]] bool show();

    void close();

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace quelby::app
