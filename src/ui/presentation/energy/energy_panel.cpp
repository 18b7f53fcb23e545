#include "ui/presentation/energy/energy_panel.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/time_of_day.h"
#include "base/utf8.h"
#include "monitor/battery_moment.h"
#include "ui/presentation/energy/battery_ageing.h"
#include "ui/presentation/energy/energy_words.h"

namespace quelby {

namespace {

constexpr std::size_t mostApps = 12;    // rows; the command line tells all of them
constexpr std::size_t mostSleeps = 6;   // rows
constexpr std::size_t mostSessions = 6; // rows

double totalOf(const std::vector<NamedEnergy>& apps) {
    double total = 0;
    for (const auto& app : apps) {
        total += app.wattHours;
    }
    return total;
}

// The largest, and what remains in one row.
std::vector<NamedEnergy> shownApps(const std::vector<NamedEnergy>& apps) {
    if (apps.size() <= mostApps) {
        return apps;
    }
    const auto end = apps.begin() + static_cast<std::ptrdiff_t>(mostApps - 1);
    std::vector<NamedEnergy> shown(apps.begin(), end);
    const auto rest = std::vector<NamedEnergy>(end, apps.end());
    shown.push_back({fmt::format("{} others", rest.size()), totalOf(rest)});
    return shown;
}

EnergyRow row(const NamedEnergy& app, double largest, std::optional<double> fullCharge) {
    const bool isSystem = app.name == systemName;
    return {.name = isSystem ? secondary(std::string(systemName)) : primary(printable(app.name)),
            .bar = bar(app.wattHours, largest, isSystem ? ColorName::secondary : ColorName::accent),
            .energy = primary(wattHoursText(app.wattHours)),
            .share = secondary(chargeShareText(app.wattHours, fullCharge))};
}

std::string totalText(double wattHours, std::optional<double> fullCharge) {
    const auto share = chargeShareText(wattHours, fullCharge);
    return share.empty() ? wattHoursText(wattHours)
                         : fmt::format("{}, {} of a charge", wattHoursText(wattHours), share);
}

std::string footnoteText(std::optional<double> fullCharge) {
    return fullCharge ? fmt::format("{} {}", energyFootnote, chargeFootnote) : std::string(energyFootnote);
}

EnergyUse energyUse(const EnergyReport& report, std::optional<double> fullCharge) {
    EnergyUse use{.symbol = {"bolt.fill", ColorName::yellow},
                  .title = primary("By Application"),
                  .total = secondary(""),
                  .footnote = secondary(footnoteText(fullCharge))};
    for (const auto range : allEnergyRanges) {
        use.ranges.push_back({std::string(label(range)), range == report.range});
    }
    const auto apps = shownApps(report.apps);
    if (apps.empty()) {
        use.placeholder = secondary("Nothing recorded yet");
        return use;
    }
    use.total = secondary(totalText(totalOf(report.apps), fullCharge));
    double largest = 0;
    for (const auto& app : apps) {
        largest = std::max(largest, app.wattHours);
    }
    for (const auto& app : apps) {
        use.rows.push_back(row(app, largest, fullCharge));
    }
    return use;
}

std::string dayAndTime(std::int64_t time) {
    const auto moment = static_cast<double>(time);
    return localDate(moment).substr(5) + ' ' + hourAndMinute(moment);
}

std::string costText(const Sleep& sleep) {
    const double lost = sleep.percentBefore - sleep.percentAfter;
    if (lost < 0) {
        return fmt::format("charged {:.1f} %", -lost);
    }
    const auto watts = meanWatts(sleep);
    return fmt::format("{:.1f} %{}", lost, watts ? fmt::format(", {:.2f} W", *watts) : "");
}

PastRow row(const Sleep& sleep) {
    PastRow row{.when = secondary(dayAndTime(sleep.start)),
                .what = primary(durationText(static_cast<double>(sleep.seconds))),
                .cost = primary(costText(sleep))};
    if (drainedMuch(sleep)) {
        row.warning = {std::string(drainedMuchText), ColorName::orange};
    }
    return row;
}

PastRow row(const Session& session) {
    return {.when = secondary(dayAndTime(session.start)),
            .what = primary(fmt::format("{}, {}", sessionName(session.kind),
                                        durationText(static_cast<double>(session.seconds)))),
            .cost = primary(fmt::format("{} to {} %, {}", session.percentFrom, session.percentTo,
                                        wattHoursText(session.wattHours)))};
}

template <typename Record>
PastSection section(Symbol symbol, const char* title, const std::vector<Record>& records, std::size_t most) {
    PastSection section{.symbol = symbol, .title = primary(title)};
    for (std::size_t i = 0; i < std::min(records.size(), most); ++i) {
        section.rows.push_back(row(records[i]));
    }
    if (records.empty()) {
        section.placeholder = secondary("None recorded yet");
    }
    return section;
}

AgeingSection ageingSection(const std::vector<BatteryDay>& days) {
    AgeingSection section{.symbol = {"heart.fill", ColorName::red},
                          .title = primary("Battery Ageing"),
                          .ageing = secondary(ageingText(days))};
    for (const auto& day : days) {
        if (const auto health = healthPercent(day)) {
            section.days.push_back({static_cast<double>(day.day), *health});
        }
    }
    if (const auto line = ageingLine(days)) {
        section.line = {{section.days.front().day, line->first}, {section.days.back().day, line->last}};
    }
    return section;
}

} // namespace

EnergyPanel energyPanel(const EnergyReport& report, const PublishedFields& fields,
                        std::optional<double> minutesToLimit) {
    EnergyPanel panel{.header = energyHeader(), .use = energyUse(report, fullChargeWattHours(fields))};
    if (minutesToLimit) {
        panel.limit = {{"bolt.badge.checkmark.fill", ColorName::green},
                       primary(timeToLimitText(*minutesToLimit, fields.chargeLimitPercent))};
    }
    if (fields.hasBattery) {
        panel.sleeps = section({"clock", ColorName::purple}, "Sleep", report.sleeps, mostSleeps);
        panel.sessions = section({"battery.100percent", ColorName::green}, "On Battery and Charging",
                                 report.sessions, mostSessions);
        panel.ageing = ageingSection(report.days);
    }
    return panel;
}

} // namespace quelby
