#pragma once

#include <cstdint>

#include "base/date.h"

namespace quelby {

// One point of the consumption curve.
struct HistoryDataPoint {
    std::int64_t id = 0; // seconds since 1970-01-01 00:00 UTC; unique within one result
    double watts = 0;

    // The same instant as `id`.
    [[nodiscard]] Date date() const { return static_cast<Date>(id); }

    bool operator==(const HistoryDataPoint&) const = default;
};

} // namespace quelby
