#include "platform/linux/battery/pack_content.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace quelby {

namespace {

// 32 set bits are the "unknown" of many gauges, and far beyond any computer's battery.
std::optional<double> milliFull(RawNumber micro) {
    constexpr std::int64_t allBits = 4'294'967'295;
    const bool known = micro && *micro > 0 && *micro < allBits;
    return known ? std::optional(static_cast<double>(*micro) / 1000.0) : std::nullopt;
}

std::optional<double> milliRemaining(RawNumber micro) {
    return micro && *micro >= 0 ? std::optional(static_cast<double>(*micro) / 1000.0) : std::nullopt;
}

std::optional<int> gaugePercent(const RawPack& pack) {
    if (!pack.capacity || *pack.capacity < 0) {
        return std::nullopt;
    }
    return static_cast<int>(std::min<std::int64_t>(*pack.capacity, 100));
}

bool saysFull(const RawCapacity& capacity) {
    return capacity.full.value_or(0) > 0 || capacity.fullDesign.value_or(0) > 0;
}

// Charge, if there is a choice: its amounts need no voltage, and the energies of some drivers are made up.
ContentUnit unitOf(const RawPack& pack) {
    const bool saysCharge = pack.charge.now.value_or(0) > 0 || saysFull(pack.charge);
    const bool energyIsEnough = pack.energy.now.value_or(-1) >= 0 && saysFull(pack.energy);
    const bool charge = pack.isChargeEnough() || (saysCharge && !energyIsEnough);
    return charge ? ContentUnit::MilliampereHours : ContentUnit::MilliwattHours;
}

PackContent amountsOf(const RawPack& pack) {
    const auto unit = unitOf(pack);
    const auto& raw = unit == ContentUnit::MilliampereHours ? pack.charge : pack.energy;
    return {unit, milliFull(raw.fullDesign), milliFull(raw.full), milliRemaining(raw.now), std::nullopt};
}

// Beyond belief: more than 1.2 times the full amount. A gauge may overrun a little after a full charge; what
// says more has lost its bearings.
bool hasOverrun(const PackContent& content) {
    const auto full = content.full ? content.full : content.design;
    return full && content.remaining && *content.remaining > 1.2 * *full;
}

bool contradicts(std::optional<int> gauge, double remaining, double design) {
    if (!gauge || (*gauge == 0 && remaining > 0)) {
        return false; // kernels that miss the full amount say 0
    }
    return std::abs(*gauge - truncatedPercent(remaining, design)) > 1;
}

void completeFull(PackContent& content, std::optional<int> gauge) {
    if (!content.full && content.design &&
        !(content.remaining && contradicts(gauge, *content.remaining, *content.design))) {
        content.full = content.design;
    }
}

void completeRemaining(PackContent& content, std::optional<int> gauge) {
    if (!content.remaining && content.full && gauge) {
        content.remaining = *content.full * *gauge / 100.0;
    }
}

PackContent times(PackContent content, ContentUnit unit, std::optional<double> factor) {
    const auto scale = [factor](std::optional<double>& amount) {
        amount = amount && factor ? std::optional(*amount * *factor) : std::nullopt;
    };
    scale(content.design);
    scale(content.full);
    scale(content.remaining);
    content.unit = unit;
    return content;
}

} // namespace

int truncatedPercent(double part, double whole) {
    // Sums of products may fall short of a whole percentage by their last bits.
    constexpr double lastBits = 1e-9;
    return static_cast<int>(std::min(100.0, std::floor(part * 100.0 / whole + lastBits)));
}

PackContent contentOf(const RawPack& pack) {
    auto content = amountsOf(pack);
    auto gauge = gaugePercent(pack);
    if (hasOverrun(content)) {
        content.remaining.reset();
        gauge = gauge.value_or(100);
    }
    completeFull(content, gauge);
    completeRemaining(content, gauge);
    content.percent = gauge;
    if (content.full && content.remaining) {
        content.percent = truncatedPercent(*content.remaining, *content.full);
    }
    return content;
}

PackContent inMilliampereHours(const PackContent& content, std::optional<double> volts) {
    if (content.unit == ContentUnit::MilliampereHours) {
        return content;
    }
    const auto factor = volts ? std::optional(1.0 / *volts) : std::nullopt;
    return times(content, ContentUnit::MilliampereHours, factor);
}

PackContent inMilliwattHours(const PackContent& content, std::optional<double> volts) {
    return content.unit == ContentUnit::MilliwattHours ? content
                                                       : times(content, ContentUnit::MilliwattHours, volts);
}

} // namespace quelby
