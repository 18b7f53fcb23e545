// The charge limit at the top of the dashboard: whether it holds, where it stops, and what the helper is
// doing.
#pragma once

#include <array>

#include "monitor/published_fields.h"
#include "platform/system_words.h"
#include "ui/presentation/elements/elements.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_SliderRange(MEMBER)                                                                \
    MEMBER(plain, double, value) /* may lie outside, where the helper was told so by other means */          \
    MEMBER(plain, double, from)                                                                              \
    MEMBER(plain, double, to)                                                                                \
    MEMBER(plain, double, step)

struct SliderRange {
    QUELBY_RECORD(SliderRange)
};

#define QUELBY_MEMBERS_OF_StatusLine(MEMBER)                                                                 \
    MEMBER(part, Color, dot)                                                                                 \
    MEMBER(part, Text, text)

struct StatusLine {
    QUELBY_RECORD(StatusLine)
};

// What is shown instead of any setting while there is no helper, and above them while it is another version's.
#define QUELBY_MEMBERS_OF_HelperOffer(MEMBER)                                                                \
    MEMBER(part, Text, explanation)                                                                          \
    MEMBER(part, Label, installButton)

struct HelperOffer {
    QUELBY_RECORD(HelperOffer)
};

#define QUELBY_MEMBERS_OF_StopLevel(MEMBER)                                                                  \
    MEMBER(list, Text, stopAt)        /* what is meant, and the level itself */                              \
    MEMBER(part, SliderRange, slider) /* % of full charge */                                                 \
    MEMBER(list, Text, scale)         /* the texts of scaleLevels, in their order */                         \
    MEMBER(part, StatusLine, status)

struct StopLevel {
    QUELBY_RECORD(StopLevel)
};

#define QUELBY_MEMBERS_OF_ChargeLimitCard(MEMBER)                                                            \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(plain, bool, enabled)                                                                             \
    MEMBER(plain, bool, helperInstalled)                                                                     \
    MEMBER(part, Text, subtitle)                                                                             \
    MEMBER(optional, HelperOffer, offer)   /* without helper, or with another version's */                   \
    MEMBER(optional, StopLevel, stopLevel) /* with helper, while the limit is on */

struct ChargeLimitCard {
    QUELBY_RECORD(ChargeLimitCard)
};

// What a person may choose as the level to stop at, in % of full charge.
struct StopRange {
    Int lowest = 20;
    Int highest = 100;
    Int step = 5;
};

inline constexpr StopRange stopRange;

// The levels that are named below the slider; not 40 %: the scale names where people stop.
inline constexpr std::array<Int, 4> scaleLevels{20, 60, 80, 100};

// Where a level lies on the slider: 0 at its beginning to 1 at its end.
[[nodiscard]] constexpr double positionOnSlider(Int level) {
    return static_cast<double>(level - stopRange.lowest) /
           static_cast<double>(stopRange.highest - stopRange.lowest);
}

// For a helper of another version than the program.
[[nodiscard]] HelperOffer helperUpdate();

[[nodiscard]] ChargeLimitCard chargeLimitCard(const PublishedFields& fields, const SystemWords& words);

} // namespace quelby
