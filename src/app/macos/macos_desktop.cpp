#include "app/macos/macos_desktop.h"

#include <utility>

#include "app/macos/embedded_popover.h"
#include "app/macos/floating_popover.h"
#include "app/macos/key_monitor.h"
#include "app/macos/menu_bar_application.h"
#include "platform/battery_settings.h"

namespace quelby::app {

std::unique_ptr<StatusItem> MacosDesktop::makeStatusItem() {
    auto item = std::make_unique<MacosStatusItem>();
    item_ = item.get();
    return item;
}

std::unique_ptr<Popover> MacosDesktop::makePopover(std::shared_ptr<PowerMonitor> monitor,
                                                   std::function<void()> quit) {
    const QuickDashboard::ModelMaker makeModel = [monitor = std::move(monitor), quit = std::move(quit),
                                                  clock = &clock_] {
        return std::make_unique<DashboardModel>(
            monitor, *clock,
            DashboardActions{.quit = quit, .openBatterySettings = [] { openBatterySettings(); }});
    };
    auto embedded = std::make_unique<EmbeddedPopover>(item_->button(), makeModel);
    if (embedded->holdsDashboard()) {
        return embedded;
    }
    return std::make_unique<FloatingPopover>(item_->button(), makeModel);
}

void MacosDesktop::addKeyMonitor(std::function<bool(const KeyDown&)> handler) {
    addKeyDownMonitor(std::move(handler));
}

void MacosDesktop::terminate() {
    terminateApplication();
}

} // namespace quelby::app
