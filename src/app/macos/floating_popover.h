#pragma once

#include <QObject>

#include "app/macos/appkit_names.h"
#include "app/macos/popover_content.h"
#include "app/macos/system_appearance.h"
#include "app/macos/window_fade.h"
#include "app/popover.h"

namespace quelby::app {

// The dashboard in a frameless window, for where the system's popover does not take it in or cannot be shown:
// below the status item, or, where the menu bar hides that, below the menu bar of the screen with the pointer.
// It closes when another application becomes the active one.
class FloatingPopover final : public Popover {
public:
    // The button outlives the popover; without one it never shows.
    FloatingPopover(NSStatusBarButton* button, PopoverContent::ModelMaker makeModel);

    [[nodiscard]] bool isShown() const override;
    void show() override;
    void showSettings() override;
    void close() override;

private:
    [[nodiscard]] QPoint corner() const;

    NSStatusBarButton* button_;
    PopoverContent dashboard_;
    WindowFade fade_;
    SystemAppearanceListener system_;
    QObject listener_; // to the application's state
};

} // namespace quelby::app
