#include "cli/output/battery_records_output.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "base/json_value.h"
#include "base/time_of_day.h"
#include "cli/output/csv_field.h"
#include "history/energy/session_kind.h"
#include "ui/presentation/energy/battery_ageing.h"
#include "ui/presentation/energy/energy_words.h"

namespace quelby::cli {

namespace {

using Json = nlohmann::ordered_json;

std::string dateAndTime(std::int64_t time) {
    const auto moment = static_cast<double>(time);
    return localDate(moment) + ' ' + hourAndMinute(moment);
}

std::string asCsv(const Sleep& sleep) {
    return fmt::format("{},{},{},{},{},{},{},{}", sleep.start, sleep.end, sleep.seconds, sleep.percentBefore,
                       sleep.percentAfter, csvField(sleep.wattHours), csvField(meanWatts(sleep)),
                       percentPerHour(sleep));
}

Json asJson(const Sleep& sleep) {
    return {{"start", sleep.start},
            {"end", sleep.end},
            {"seconds", sleep.seconds},
            {"percentBefore", sleep.percentBefore},
            {"percentAfter", sleep.percentAfter},
            {"wattHours", orNull(sleep.wattHours)},
            {"watts", orNull(meanWatts(sleep))},
            {"percentPerHour", percentPerHour(sleep)},
            {"drainedMuch", drainedMuch(sleep)}};
}

std::string asText(const Sleep& sleep) {
    const auto watts = meanWatts(sleep);
    return fmt::format("{}  {:>12}  {:5.1f} % to {:5.1f} %  {:>7}  {:5.2f} %/h{}", dateAndTime(sleep.start),
                       durationText(static_cast<double>(sleep.seconds)), sleep.percentBefore,
                       sleep.percentAfter, watts ? fmt::format("{:.2f} W", *watts) : "",
                       percentPerHour(sleep), drainedMuch(sleep) ? fmt::format("  {}", drainedMuchText) : "");
}

std::string asCsv(const Session& session) {
    return fmt::format("{},{},{},{},{},{},{}", rawValue(session.kind), session.start, session.end,
                       session.seconds, session.percentFrom, session.percentTo, session.wattHours);
}

Json asJson(const Session& session) {
    return {{"kind", rawValue(session.kind)},
            {"start", session.start},
            {"end", session.end},
            {"seconds", session.seconds},
            {"percentFrom", session.percentFrom},
            {"percentTo", session.percentTo},
            {"wattHours", session.wattHours}};
}

std::string asText(const Session& session) {
    return fmt::format("{}  {:<11}  {:>12}  {:3} % to {:3} %  {:>9}", dateAndTime(session.start),
                       sessionName(session.kind), durationText(static_cast<double>(session.seconds)),
                       session.percentFrom, session.percentTo, wattHoursText(session.wattHours));
}

// Days are those of UTC, in whatever zone they are looked at.
std::string dayText(const BatteryDay& day) {
    constexpr double noon = 43200; // seconds after the start, which is the same date in nearly every zone
    return localDate(static_cast<double>(day.day) + noon);
}

std::string asCsv(const BatteryDay& day) {
    return fmt::format("{},{},{},{},{},{}", day.day, day.fullCapacity, csvField(day.designCapacity),
                       csvField(healthPercent(day)), day.cycleCount, csvField(day.maxTemperature));
}

Json asJson(const BatteryDay& day) {
    return {{"day", day.day},
            {"fullCapacity", day.fullCapacity},
            {"designCapacity", orNull(day.designCapacity)},
            {"healthPercent", orNull(healthPercent(day))},
            {"cycleCount", day.cycleCount},
            {"maxTemperature", orNull(day.maxTemperature)}};
}

std::string asText(const BatteryDay& day) {
    const auto health = healthPercent(day);
    return fmt::format("{}  {:5} mAh  {:>7}  {:4} cycles  {:>7}", dayText(day), day.fullCapacity,
                       health ? fmt::format("{:.1f} %", *health) : "", day.cycleCount,
                       day.maxTemperature ? fmt::format("{:.1f} °C", *day.maxTemperature) : "");
}

template <typename Record>
std::string lines(const std::vector<Record>& records, std::string (*write)(const Record&)) {
    std::string text;
    for (const auto& record : records) {
        auto line = write(record);
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    }
    return text;
}

template <typename Record>
Json list(const std::vector<Record>& records) {
    auto array = Json::array();
    for (const auto& record : records) {
        array.push_back(asJson(record));
    }
    return array;
}

template <typename Record>
std::string inForm(const std::vector<Record>& records, OutputForm form, const char* key, const char* columns,
                   const char* none) {
    switch (form) {
    case OutputForm::json:
        return Json{{key, list(records)}}.dump() + '\n';
    case OutputForm::csv:
        return columns + lines<Record>(records, asCsv);
    case OutputForm::text:
        return records.empty() ? none : lines<Record>(records, asText);
    }
    return {};
}

} // namespace

std::string sleepsInForm(const std::vector<Sleep>& sleeps, OutputForm form) {
    return inForm(sleeps, form, "sleeps",
                  "start,end,seconds,percent_before,percent_after,watt_hours,watts,percent_per_hour\n",
                  "no sleep recorded\n");
}

std::string sessionsInForm(const std::vector<Session>& sessions, OutputForm form) {
    return inForm(sessions, form, "sessions", "kind,start,end,seconds,percent_from,percent_to,watt_hours\n",
                  "no session recorded\n");
}

std::string healthInForm(const std::vector<BatteryDay>& days, OutputForm form) {
    if (form == OutputForm::json) {
        const auto line = ageingLine(days);
        return Json{{"days", list(days)},
                    {"percentPerMonth", line ? Json(line->percentPerMonth) : Json(nullptr)},
                    {"ageing", ageingText(days)}}
                   .dump() +
               '\n';
    }
    auto text = inForm(days, form, "days",
                       "day,full_capacity,design_capacity,health_percent,cycle_count,max_temperature\n",
                       "no day recorded\n");
    if (form == OutputForm::text && !days.empty()) {
        text += "Ageing: " + ageingText(days) + '\n';
    }
    return text;
}

} // namespace quelby::cli
