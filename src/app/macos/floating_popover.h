#pragma once

#include <QObject>

#include "app/macos/appkit_names.h"
#include "app/macos/popover_content.h"
#include "app/popover.h"

namespace quelby::app {

// The dashboard in a frameless window below the status item, for where the system's popover does not take it
// in. It closes when another application becomes the active one.
class FloatingPopover final : public Popover {
public:
    // The button outlives the popover; without one it never shows.
    FloatingPopover(NSStatusBarButton* button, PopoverContent::ModelMaker makeModel);

    [[nodiscard]] bool isShown() const override;
    void show() override;
    void showSettings() override;
    void close() override;

private:
    NSStatusBarButton* button_;
    PopoverContent dashboard_;
    QObject listener_; // to the application's state
};

} // namespace quelby::app
