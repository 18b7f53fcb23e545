#include "platform/linux/battery/whole_capacity.h"

#include <algorithm>
#include <cmath>

namespace quelby {

namespace {

std::int64_t hundredthRoundedUp(std::int64_t hundredfold) {
    return (hundredfold + 99) / 100;
}

// The whole number nearest to the part that makes this percentage of the whole; nothing if none does.
std::optional<std::int64_t> wholePart(double part, std::int64_t whole, int percent) {
    const auto nearest = static_cast<std::int64_t>(std::llround(part));
    if (percent >= 100) {
        return std::max(nearest, whole);
    }
    const auto least = hundredthRoundedUp(percent * whole);
    const auto most = hundredthRoundedUp((percent + 1) * whole) - 1;
    return least <= most ? std::optional(std::clamp(nearest, least, most)) : std::nullopt;
}

std::optional<std::int64_t> rounded(std::optional<double> amount) {
    return amount ? std::optional<std::int64_t>(std::llround(*amount)) : std::nullopt;
}

std::optional<std::int64_t> aboveZero(std::optional<std::int64_t> amount) {
    return amount && *amount > 0 ? amount : std::nullopt;
}

std::optional<std::int64_t> wholeFull(const PackContent& content, std::optional<std::int64_t> design) {
    const auto nearest = aboveZero(rounded(content.full));
    if (!nearest || !design) {
        return nearest;
    }
    const int health = truncatedPercent(*content.full, *content.design);
    const auto full = wholePart(*content.full, *design, health);
    return full ? aboveZero(full) : nearest;
}

} // namespace

WholeCapacity wholeCapacity(const PackContent& content) {
    const auto design = aboveZero(rounded(content.design));
    const auto full = wholeFull(content, design);
    if (!content.percent) {
        return {design, full, rounded(content.remaining), std::nullopt};
    }
    if (full && content.remaining) {
        if (const auto remaining = wholePart(*content.remaining, *full, *content.percent)) {
            return {design, full, remaining, std::nullopt};
        }
    }
    return {design, std::nullopt, rounded(content.remaining), content.percent};
}

} // namespace quelby
