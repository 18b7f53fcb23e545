// A dashboard's model over a made-up computer: a test sets the fields, and sees what the program would do.
#pragma once

#include "support/fake_platform.h"
#include "ui/bridge/dashboard_model.h"

namespace quelby {

struct MadeUpDashboard {
    fake::Computer computer;
    std::shared_ptr<PowerMonitor> monitor = PowerMonitor::create(computer.platform());
    int quits = 0;
    int batterySettingsOpened = 0;
    DashboardModel model{
        monitor,
        computer.clock,
        {.quit = [this] { ++quits; }, .openBatterySettings = [this] { ++batterySettingsOpened; }}};

    MadeUpDashboard() = default;
    MadeUpDashboard(const MadeUpDashboard&) = delete;
    MadeUpDashboard& operator=(const MadeUpDashboard&) = delete;
    ~MadeUpDashboard() = default;
};

// Something in every card: a laptop on power whose limit is on.
void fillEveryCard(PublishedFields& fields);

// What the turn of the event loop would do that is due now.
void finishTurn();

} // namespace quelby
