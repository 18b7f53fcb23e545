#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quelby {

// The load of the whole machine in percent, from the CPU listing: the sum of all shares, which are relative
// to one processor, over the number of logical processors (at least 1); 100 at the most. The heading and
// lines that are not wholly a number count nothing. Nothing if the listing is not UTF-8.
[[nodiscard]] std::optional<double> cpuUsage(std::string_view cpuListing, std::int64_t logicalProcessors);

} // namespace quelby
