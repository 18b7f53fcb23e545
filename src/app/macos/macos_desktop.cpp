#include "app/macos/macos_desktop.h"

#include <utility>

#include "app/macos/embedded_popover.h"
#include "app/macos/floating_popover.h"
#include "app/macos/key_monitor.h"
#include "app/macos/menu_bar_application.h"
#include "app/macos/popover_choice.h"
#include "platform/battery_settings.h"

namespace quelby::app {

StatusItem& MacosDesktop::makeStatusItem() {
    return item_.emplace();
}

Popover& MacosDesktop::makePopover(std::shared_ptr<PowerMonitor> monitor, std::function<void()> quit) {
    const PopoverContent::ModelMaker makeModel = [monitor = std::move(monitor), quit = std::move(quit),
                                                  clock = &clock_] {
        return std::make_unique<DashboardModel>(
            monitor, *clock, ProgramActions{.quit = quit, .openBatterySettings = openBatterySettings});
    };
    auto embedded = std::make_unique<EmbeddedPopover>(item_->button(), makeModel);
    if (!embedded->holdsDashboard()) {
        embedded.reset();
    }
    popover_ = std::make_unique<PopoverChoice>(std::move(embedded), [this, makeModel] {
        return std::make_unique<FloatingPopover>(item_->button(), makeModel);
    });
    return *popover_;
}

void MacosDesktop::addKeyMonitor(std::function<bool(const KeyDown&)> handler) {
    addKeyDownMonitor(std::move(handler));
}

void MacosDesktop::terminate() {
    terminateApplication();
}

} // namespace quelby::app
