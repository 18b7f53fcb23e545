#pragma once

namespace quelby {

// The start of the day that the moment belongs to in the user's time zone; both in seconds since
// 1970-01-01 00:00 UTC. Where the clocks skip midnight, the day starts with its first moment.
[[nodiscard]] double startOfLocalDay(double moment);

} // namespace quelby
