#include "platform/local_day.h"

#include <cmath>
#include <ctime>
#include <optional>

namespace quelby {

namespace {

constexpr std::time_t longestDay = std::time_t{27} * 60 * 60; // clocks have gone back by three hours at most

// How far the clocks are ahead of UTC, in seconds; nothing for a moment beyond the calendar.
std::optional<std::time_t> offsetAt(std::time_t moment) {
    std::tm local{};
    return localtime_r(&moment, &local) == nullptr ? std::nullopt : std::optional(local.tm_gmtoff);
}

// What the clocks show, as if they showed UTC.
std::time_t shownAt(std::time_t moment) {
    return moment + offsetAt(moment).value_or(0);
}

// The first moment after `before`, which shows less, and up to `after` at which the clocks show this or more.
std::time_t firstShowing(std::time_t shown, std::time_t before, std::time_t after) {
    while (after - before > 1) {
        const auto middle = before + (after - before) / 2;
        (shownAt(middle) < shown ? before : after) = middle;
    }
    return after;
}

} // namespace

double startOfLocalDay(double moment) {
    ::tzset(); // the zone may have been changed, which localtime_r() does not look for
    const auto seconds = static_cast<std::time_t>(std::floor(moment));
    const auto offset = offsetAt(seconds);
    if (!offset) {
        return moment;
    }
    constexpr std::time_t day = std::time_t{24} * 60 * 60;
    const auto shown = seconds + *offset;
    const auto midnight = shown - ((shown % day) + day) % day;
    // Of two midnights the clocks went back after the first, so that is at the earlier offset.
    for (const auto candidate :
         {midnight - offsetAt(seconds - longestDay).value_or(*offset), midnight - *offset}) {
        if (candidate <= seconds && shownAt(candidate) == midnight) {
            return static_cast<double>(candidate);
        }
    }
    return static_cast<double>(firstShowing(midnight, seconds - longestDay, seconds));
}

} // namespace quelby
