#pragma once

#include <memory>

#include <QWindow>

#include "app/macos/native_popover.h"
#include "app/macos/popover_content.h"
#include "app/macos/system_appearance.h"
#include "app/popover.h"

namespace quelby::app {

// The dashboard inside the system's popover: Qt's window becomes a view in the popover's, clear, so that the
// popover's own material shines through. Where the popover cannot be shown, it stays away.
class EmbeddedPopover final : public Popover {
public:
    // The button outlives the popover.
    EmbeddedPopover(NSStatusBarButton* button, PopoverContent::ModelMaker makeModel);

    // Whether Qt's window has found its place. Otherwise the popover stays empty.
    [[nodiscard]] bool holdsDashboard() const;

    [[nodiscard]] bool isShown() const override;
    void show() override;
    void showSettings() override;
    void close() override;

private:
    [[nodiscard]] Appearance appearance() const;
    void followAppearance();

    NativePopover popover_;
    std::unique_ptr<QWindow> host_; // stands for the popover's view; none where Qt takes in no foreign views
    PopoverContent dashboard_;      // goes before its parent
    SystemAppearanceListener system_;
};

} // namespace quelby::app
