// The charge limit at the top of the dashboard: whether it holds, where it stops, and what the helper is
// doing.
#pragma once

#include <array>
#include <optional>

#include "monitor/published_fields.h"
#include "ui/presentation/elements.h"

namespace quelby {

struct SliderRange {
    double value = 0; // may lie outside, where the helper was told so by other means
    double from = 0;
    double to = 0;
    double step = 0;

    bool operator==(const SliderRange&) const = default;
};

struct StatusLine {
    Color dot;
    Text text;

    bool operator==(const StatusLine&) const = default;
};

// What is shown instead of any setting while there is no helper.
struct HelperOffer {
    Text explanation;
    Label installButton;

    bool operator==(const HelperOffer&) const = default;
};

struct StopLevel {
    std::array<Text, 2> stopAt;
    SliderRange slider; // % of full charge
    std::array<Text, 4> scale;
    StatusLine status;

    bool operator==(const StopLevel&) const = default;
};

struct ChargeLimitCard {
    Symbol symbol;
    Text title;
    bool enabled = false;
    bool helperInstalled = false;
    Text subtitle;
    std::optional<HelperOffer> offer;   // without helper
    std::optional<StopLevel> stopLevel; // with helper, while the limit is on

    bool operator==(const ChargeLimitCard&) const = default;
};

// What a person may choose as the level to stop at, in % of full charge.
struct StopRange {
    Int lowest = 20;
    Int highest = 100;
    Int step = 5;
};

inline constexpr StopRange stopRange;

[[nodiscard]] ChargeLimitCard chargeLimitCard(const PublishedFields& fields);

} // namespace quelby
