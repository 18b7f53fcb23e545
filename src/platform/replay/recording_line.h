// One line of a recording: a JSON object with the keys
//
//   time          seconds since 1970-01-01 00:00 UTC
//   battery       the property table, null (no battery service) or "unreadable"
//   processors    number of logical processors
//   cpuListing    text, or null (the lister could not be started)
//   topListing    text, or null (the lister could not be started)
//   applicationListing
//                 optional: text
//   sinceBoot     optional: {"awake": seconds, "asleep": seconds}
//   storageDraw   optional: 0 or 1
//   status        optional: text of the helper's status.json
//   helperLoaded  optional: Boolean
//   config        optional: text of the helper's config.json
//
// Other keys are passed over, so that older programs read newer recordings. An optional key that is null
// counts as absent. A property of the battery that is neither a Boolean nor an integer of 64 bits counts as
// absent.
#pragma once

#include <string>
#include <string_view>

#include "base/problem.h"
#include "platform/replay/recorded_cycle.h"

namespace quelby {

// The problem is a clause without subject, such as «has no "time"».
[[nodiscard]] Result<RecordedCycle> parseRecordingLine(std::string_view line);

// Without the newline.
[[nodiscard]] std::string recordingLine(const RecordedCycle& cycle);

} // namespace quelby
