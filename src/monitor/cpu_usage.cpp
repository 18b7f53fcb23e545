#include "monitor/cpu_usage.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/utf8.h"
#include "monitor/listing_lines.h"

namespace quelby {

std::optional<double> cpuUsage(std::string_view cpuListing, std::int64_t logicalProcessors) {
    if (!isUtf8(cpuListing)) {
        return std::nullopt;
    }
    double sum = 0.0;
    ListingLines lines(cpuListing);
    while (const auto line = lines.next()) {
        sum += decimalNumber(*line).value_or(0.0);
    }
    return std::min(sum / static_cast<double>(logicalProcessors), 100.0);
}

} // namespace quelby
