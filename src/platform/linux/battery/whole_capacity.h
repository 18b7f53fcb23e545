// Capacities in whole mAh whose quotients still tell the right percentages.
//
// Whoever reads the table divides the whole numbers and truncates. Rounded one by one, 50 % may read as 49 %.
// So full is rounded to where full * 100 / design truncates to the health, and remaining to where
// remaining * 100 / full truncates to the percentage of the exact amounts. That is the nearest whole number,
// or 1 mAh (remaining: 2 mAh) beside it.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/linux/battery/pack_content.h"

namespace quelby {

struct WholeCapacity {
    std::optional<std::int64_t> design;    // mAh, above 0
    std::optional<std::int64_t> full;      // mAh, above 0
    std::optional<std::int64_t> remaining; // mAh, at least 0

    // % of full, where full is not known, or so small (below 100 mAh) that no whole remaining charge makes
    // the percentage; full is unknown then.
    std::optional<int> percent;
};

// The content is in mAh.
[[nodiscard]] WholeCapacity wholeCapacity(const PackContent& content);

} // namespace quelby
