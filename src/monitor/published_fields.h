// Every figure that the title, the dashboard and the command line show. They are listed here and nowhere
// else: whoever handles all of them (JSON, the status listing, the bridge to the user interface) visits them
// with forEachField().
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/date.h"
#include "history/history_data_point.h"
#include "history/time_range.h"
#include "monitor/menu_bar_display.h"
#include "monitor/process_info_energy.h"
#include "monitor/published.h"

namespace quelby {

using Int = std::int64_t;

// FIELD(type, name, default, unit), in the order in which they are shown everywhere.
#define QUELBY_PUBLISHED_FIELDS(FIELD)                                                                       \
    FIELD(Int, batteryPercent, 0, "%")             /* state of charge */                                     \
    FIELD(bool, isCharging, false, "")             /* the battery says that it is charging */                \
    FIELD(bool, isPluggedIn, false, "")            /* external power is connected */                         \
    FIELD(bool, fullyCharged, false, "")           /* the battery says that it is full */                    \
    FIELD(bool, hasBattery, true, "")              /* the battery service exists */                          \
    FIELD(Int, batteryHealth, 100, "%")            /* full charge relative to design */                      \
    FIELD(std::string, timeRemaining, "--:--", "") /* h:mm, the system's own estimate */                     \
    FIELD(Int, designCapacity, 0, "mAh")                                                                     \
    FIELD(Int, rawMaxCapacity, 0, "mAh")     /* full charge at present */                                    \
    FIELD(Int, rawCurrentCapacity, 0, "mAh") /* remaining charge */                                          \
    FIELD(Int, cycleCount, 0, "cycles")                                                                      \
    FIELD(double, realWatts, 0, "W") /* measured at the battery, never negative */                           \
    FIELD(double, voltage, 0, "V")                                                                           \
    FIELD(double, amperage, 0, "mA") /* negative while discharging */                                        \
    FIELD(double, cpuUsage, 0, "%")  /* of the whole machine */                                              \
    FIELD(double, cpuPower, 0, "W")  /* estimated share of the system's power */                             \
    FIELD(double, gpuPower, 0, "W")                                                                          \
    FIELD(double, memPower, 3.0, "W")                                                                        \
    FIELD(double, diskPower, 1.5, "W")                                                                       \
    FIELD(double, netPower, 1.0, "W")                                                                        \
    FIELD(double, totalPower, 0, "W")  /* what the system draws */                                           \
    FIELD(double, chargePower, 0, "W") /* what goes into the battery */                                      \
    FIELD(double, acTotal, 0, "W")     /* what is drawn from the adapter */                                  \
    FIELD(Int, efficiency, 50, "of 100")                                                                     \
    FIELD(std::vector<ProcessInfo_Energy>, topProcesses, {}, "")                                             \
    FIELD(std::vector<double>, powerHistory, {}, "W")      /* the last totals, oldest first */               \
    FIELD(std::string, predictedTime, "collecting...", "") /* own prediction to empty or full */             \
    FIELD(std::string, batteryRateStr, "", "")             /* change of charge, "%/hr" included */           \
    FIELD(TimeRange, historyRange, TimeRange::thirtyMinutes, "")                                             \
    FIELD(std::vector<HistoryDataPoint>, historyData, {}, "W") /* points of the range that is shown */       \
    FIELD(double, historyAvg, 0, "W")                                                                        \
    FIELD(double, historyMin, 0, "W")                                                                        \
    FIELD(double, historyMax, 0, "W")                                                                        \
    FIELD(double, todayWh, 0, "Wh")                                                                          \
    FIELD(bool, chargeLimitEnabled, false, "")                                                               \
    FIELD(double, chargeLimitPercent, 80.0, "%")                                                             \
    FIELD(bool, chargingInhibited, false, "") /* the helper holds charging off */                            \
    FIELD(std::string, chargeLimitStatus, "", "")                                                            \
    FIELD(bool, daemonInstalled, false, "")                                                                  \
    FIELD(bool, calibrationEnabled, false, "")                                                               \
    FIELD(Int, calibrationIntervalDays, 30, "days")                                                          \
    FIELD(bool, calibrationActive, false, "")                                                                \
    FIELD(std::optional<Date>, lastCalibrationDate, std::nullopt, "")                                        \
    FIELD(bool, launchAtLogin, false, "")                                                                    \
    FIELD(MenuBarDisplay, menuBarDisplay, MenuBarDisplay::watts, "")                                         \
    FIELD(double, batteryTemp, 0, "°C")                                                                      \
    FIELD(bool, shouldShowChargingTip, false, "")

struct PublishedFields {
// NOLINTNEXTLINE(bugprone-macro-parentheses): a type and a name cannot stand in parentheses
#define QUELBY_DECLARE_FIELD(type, name, value, unit) Published<type> name{type(value)};
    QUELBY_PUBLISHED_FIELDS(QUELBY_DECLARE_FIELD)
#undef QUELBY_DECLARE_FIELD

    // Beside the figures: the helper that is installed is of another version than this program. Changes before
    // daemonInstalled is set, and with it.
    bool helperOutdated = false;
};

struct FieldName {
    std::string_view name;
    std::string_view unit; // empty where there is none
};

// Calls visit(FieldName, Published<T>&) for each field, in declaration order; Published<T> is const where the
// fields are.
template <typename Fields, typename Visitor>
void forEachField(Fields& fields, Visitor&& visit) {
#define QUELBY_VISIT_FIELD(type, name, value, unit) visit(FieldName{#name, unit}, fields.name);
    QUELBY_PUBLISHED_FIELDS(QUELBY_VISIT_FIELD)
#undef QUELBY_VISIT_FIELD
}

} // namespace quelby
