#pragma once

namespace quelby {

// The start of the day that the moment belongs to in the user's calendar and time zone: its first moment,
// which is no midnight where the clocks skip that, and the first of two. Both in seconds since 1970-01-01
// 00:00 UTC. The build picks the system's own definition.
[[nodiscard]] double startOfLocalDay(double moment);

} // namespace quelby
