#include "ui/presentation/cards/efficiency_card.h"

#include <algorithm>

#include <fmt/format.h>

namespace quelby {

namespace {

constexpr Int starCount = 5;

// The first star is given away.
std::string starsText(Int score) {
    const auto filled = std::clamp<Int>(score / 20, 1, starCount);
    std::string stars;
    for (Int star = 0; star < starCount; ++star) {
        stars += star < filled ? "★" : "☆";
    }
    return stars;
}

const char* ratingWord(Int score) {
    if (score > 85) {
        return "EXCELLENT";
    }
    if (score > 70) {
        return "GOOD";
    }
    if (score > 50) {
        return "FAIR";
    }
    return score > 30 ? "POOR" : "CRITICAL";
}

// What matters most comes first: a high draw outranks a low battery.
Label advice(const PublishedFields& fields) {
    if (fields.totalPower > 30) {
        return {{"exclamationmark.triangle.fill", ColorName::red},
                secondary("High power draw — close intensive apps to extend battery")};
    }
    if (fields.totalPower > 20) {
        return {{"circle.fill", ColorName::yellow}, secondary("Moderate usage — power within normal range")};
    }
    if (fields.hasBattery && fields.batteryPercent < 20 && !fields.isPluggedIn) {
        return {{"exclamationmark.triangle.fill", ColorName::red},
                secondary("Low battery — connect charger soon")};
    }
    return {{"checkmark.circle.fill", ColorName::green},
            secondary(fields.fullyCharged ? "Fully charged — unplug to preserve battery longevity"
                                          : "Efficient — running at optimal power levels")};
}

} // namespace

EfficiencyCard efficiencyCard(const PublishedFields& fields) {
    const auto score = fields.efficiency.get();
    const auto color = Color::efficiency(score);
    return {.symbol = {"gauge.with.dots.needle.bottom.50percent", ColorName::primary},
            .title = primary("Efficiency"),
            .score = {fmt::format("{}", score), color},
            .outOf = secondary("/100"),
            .stars = starsText(score),
            .rating = {ratingWord(score), color},
            .advice = advice(fields)};
}

} // namespace quelby
