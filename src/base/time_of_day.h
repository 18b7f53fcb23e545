// Times as a clock on the wall shows them, in the local time zone. A time that the calendar does not reach is
// shown as dashes.
#pragma once

#include <string>

namespace quelby {

// As in "14:03:27". The time is in seconds since 1970-01-01 00:00 UTC.
[[nodiscard]] std::string timeOfDay(double time);

// As in "14:03". The time is in seconds since 1970-01-01 00:00 UTC.
[[nodiscard]] std::string hourAndMinute(double time);

// As in "2026-11-22". The time is in seconds since 1970-01-01 00:00 UTC.
[[nodiscard]] std::string localDate(double time);

} // namespace quelby
