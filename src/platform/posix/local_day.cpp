#include "platform/posix/local_day.h"

#include <cmath>
#include <ctime>

namespace quelby {

double startOfLocalDay(double moment) {
    const auto seconds = static_cast<std::time_t>(std::floor(moment));
    std::tm day{};
    if (localtime_r(&seconds, &day) == nullptr) {
        return moment;
    }
    day.tm_hour = 0;
    day.tm_min = 0;
    day.tm_sec = 0;
    day.tm_isdst = -1; // as the zone's rules have it at that hour
    return static_cast<double>(std::mktime(&day));
}

} // namespace quelby
