#include "base/time_of_day.h"

#include <cmath>
#include <ctime>
#include <optional>

#include <fmt/format.h>

#include "base/arithmetic.h"

namespace quelby {

namespace {

// localtime_r() alone would go on in the zone in which the program was started.
std::optional<std::tm> localTime(double time) {
    ::tzset();
    const std::time_t seconds = truncated(time);
    std::tm local{};
    return std::isnan(time) || localtime_r(&seconds, &local) == nullptr ? std::nullopt : std::optional(local);
}

} // namespace

std::string timeOfDay(double time) {
    const auto local = localTime(time);
    return local ? fmt::format("{:02}:{:02}:{:02}", local->tm_hour, local->tm_min, local->tm_sec)
                 : "--:--:--";
}

std::string hourAndMinute(double time) {
    const auto local = localTime(time);
    return local ? fmt::format("{:02}:{:02}", local->tm_hour, local->tm_min) : "--:--";
}

std::string localDate(double time) {
    const auto local = localTime(time);
    return local ? fmt::format("{:04}-{:02}-{:02}", local->tm_year + 1900, local->tm_mon + 1, local->tm_mday)
                 : "----------";
}

} // namespace quelby
