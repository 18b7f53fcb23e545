#pragma once

#include <memory>
#include <optional>

#include "app/desktop.h"
#include "app/macos/macos_status_item.h"

namespace quelby::app {

// The desktop of macOS. Needs Qt's application object.
class MacosDesktop final : public Desktop {
public:
    // The clock outlives the popover.
    explicit MacosDesktop(Clock& clock) : clock_(clock) {}

    [[nodiscard]] StatusItem& makeStatusItem() override;
    [[nodiscard]] Popover& makePopover(std::shared_ptr<PowerMonitor> monitor,
                                       std::function<void()> quit) override;
    void addKeyMonitor(std::function<bool(const KeyDown&)> handler) override;
    void terminate() override;

private:
    Clock& clock_;
    std::optional<MacosStatusItem> item_; // none before it is made, as is the popover, which ends first
    std::unique_ptr<Popover> popover_;
};

} // namespace quelby::app
