#include "platform/linux/battery/pack_flow.h"

#include <cmath>

namespace quelby {

namespace {

// No portable computer's battery gives or takes more.
constexpr double mostWatts = 300;
constexpr double mostMilliamperes = 60'000;
// Beside a voltage that is a sentinel a current is likely one, too: 65535 mA would pass otherwise.
constexpr double mostMilliamperesWithoutVoltage = 5'000;

std::optional<double> volts(RawNumber microvolts, double atLeast) {
    constexpr double atMost = 60;
    if (!microvolts) {
        return std::nullopt;
    }
    const double value = static_cast<double>(*microvolts) / 1e6;
    return value >= atLeast && value <= atMost ? std::optional(value) : std::nullopt;
}

double watts(std::int64_t microwatts) {
    return static_cast<double>(microwatts) / 1e6;
}

double milliamperes(std::int64_t microamperes) {
    return static_cast<double>(microamperes) / 1e3;
}

// Older kernels gave the power of packs that measure energy as current_now.
bool isCurrentNowPower(const RawPack& pack, ContentUnit unit) {
    const bool measuresCharge = pack.charge.now || pack.charge.full || pack.charge.fullDesign;
    const bool saysFullEnergy = pack.energy.full.value_or(0) > 0 || pack.energy.fullDesign.value_or(0) > 0;
    return unit == ContentUnit::MilliwattHours && saysFullEnergy && !measuresCharge;
}

PackFlow averageFlow(const RawPack& pack) {
    if (pack.powerAvg) {
        return {std::nullopt, watts(*pack.powerAvg)};
    }
    return pack.currentAvg ? PackFlow{milliamperes(*pack.currentAvg), std::nullopt} : PackFlow{};
}

PackFlow measuredFlow(const RawPack& pack, ContentUnit unit) {
    const bool chargeFirst = unit == ContentUnit::MilliampereHours;
    if (pack.powerNow && !(chargeFirst && pack.currentNow)) {
        return {std::nullopt, watts(*pack.powerNow)};
    }
    if (!pack.currentNow) {
        return averageFlow(pack);
    }
    if (isCurrentNowPower(pack, unit)) {
        return {std::nullopt, watts(*pack.currentNow)};
    }
    return {milliamperes(*pack.currentNow), std::nullopt};
}

PackFlow completed(PackFlow flow, std::optional<double> volts) {
    if (volts && flow.watts) {
        flow.milliamperes = *flow.watts * 1000.0 / *volts;
    } else if (volts && flow.milliamperes) {
        flow.watts = *flow.milliamperes * *volts / 1000.0;
    }
    return flow;
}

bool isBelievable(const PackFlow& flow, RawNumber voltageNow) {
    if (flow.watts) {
        return std::abs(*flow.watts) <= mostWatts;
    }
    const double most = voltageNow ? mostMilliamperesWithoutVoltage : mostMilliamperes;
    return std::abs(flow.milliamperes.value_or(0)) <= most;
}

double directed(double amount, PackStatus status) {
    switch (status) {
    case PackStatus::Charging:
        return std::abs(amount);
    case PackStatus::Discharging:
        return -std::abs(amount);
    default:
        return amount;
    }
}

} // namespace

std::optional<double> voltsOf(const RawPack& pack) {
    const auto now = volts(pack.voltageNow, 0.5);
    return now ? now : volts(pack.voltageAvg, 0.5);
}

std::optional<double> referenceVoltsOf(const RawPack& pack) {
    // Firmware puts the nominal voltage into the minimum, despite its name.
    for (const auto design : {volts(pack.voltageMinDesign, 1), volts(pack.voltageMaxDesign, 1)}) {
        if (design) {
            return design;
        }
    }
    return voltsOf(pack);
}

PackFlow flowOf(const RawPack& pack, PackStatus status) {
    auto flow = completed(measuredFlow(pack, contentOf(pack).unit), voltsOf(pack));
    if (!isBelievable(flow, pack.voltageNow)) {
        return {};
    }
    for (auto* amount : {&flow.milliamperes, &flow.watts}) {
        if (*amount) {
            **amount = directed(**amount, status);
        }
    }
    return flow;
}

std::optional<double> believableMinutes(double minutes) {
    return minutes >= 1 && minutes < 6000 ? std::optional(minutes) : std::nullopt;
}

std::optional<double> minutesLeft(const PackContent& content, const PackFlow& flow) {
    const bool charge = content.unit == ContentUnit::MilliampereHours;
    const double rate = charge ? flow.milliamperes.value_or(0) : flow.watts.value_or(0) * 1000.0;
    if (rate < 0 && content.remaining) {
        return believableMinutes(*content.remaining * 60.0 / -rate);
    }
    if (rate > 0 && content.remaining && content.full) {
        return believableMinutes((*content.full - *content.remaining) * 60.0 / rate);
    }
    return std::nullopt;
}

} // namespace quelby
