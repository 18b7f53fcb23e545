#include "ui/support/made_up_dashboard.h"

#include <QCoreApplication>

namespace quelby {

void fillEveryCard(PublishedFields& fields) {
    fields.batteryPercent = 72;
    fields.isCharging = true;
    fields.isPluggedIn = true;
    fields.designCapacity = 5000;
    fields.rawMaxCapacity = 4600;
    fields.rawCurrentCapacity = 3312;
    fields.cycleCount = 212;
    fields.batteryHealth = 92;
    fields.voltage = 12.1;
    fields.amperage = 1500;
    fields.batteryTemp = 31.5;
    fields.cpuUsage = 34;
    fields.cpuPower = 9;
    fields.gpuPower = 4;
    fields.totalPower = 21;
    fields.chargePower = 18.2;
    fields.acTotal = 39;
    fields.efficiency = 64;
    fields.topProcesses =
        std::vector<ProcessInfo_Energy>{{"firefox", 61.5, 8.4}, {"Web Content", 22, 3}, {"code", 6, 1}};
    fields.powerHistory = std::vector{20.0, 24.0, 19.0, 30.0, 21.0};
    fields.predictedTime = "~1h 20m to full";
    fields.batteryRateStr = "+21.0%/hr";
    fields.historyData = std::vector<HistoryDataPoint>{
        {1'699'999'000, 12}, {1'699'999'300, 22}, {1'699'999'600, 18}, {1'699'999'900, 21}};
    fields.historyAvg = 18.3;
    fields.historyMin = 12;
    fields.historyMax = 22;
    fields.todayWh = 31.4;
    fields.chargeLimitEnabled = true;
    fields.daemonInstalled = true;
    fields.calibrationEnabled = true;
    fields.lastCalibrationDate = 1'700'000'000.0 - 3 * 86'400;
}

void finishTurn() {
    QCoreApplication::sendPostedEvents();
}

} // namespace quelby
