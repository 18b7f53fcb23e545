#pragma once

#include "app/desktop.h"
#include "app/macos/macos_status_item.h"

namespace quelby::app {

// The desktop of macOS. Needs Qt's application object. The status item that it makes ends after the popover.
class MacosDesktop final : public Desktop {
public:
    // The clock outlives the popover.
    explicit MacosDesktop(Clock& clock) : clock_(clock) {}

    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem() override;

    // Below the status item, which is there already.
    [[nodiscard]] std::unique_ptr<Popover> makePopover(std::shared_ptr<PowerMonitor> monitor,
                                                       std::function<void()> quit) override;
    void addKeyMonitor(std::function<bool(const KeyDown&)> handler) override;
    void terminate() override;

private:
    Clock& clock_;
    MacosStatusItem* item_ = nullptr; // its owner's; none before it is made
};

} // namespace quelby::app
