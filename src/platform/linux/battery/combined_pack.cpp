#include "platform/linux/battery/combined_pack.h"

#include <algorithm>

namespace quelby {

namespace {

using Packs = std::vector<BatteryPack>;

bool knowsBoth(const PackContent& content) {
    return content.full && content.remaining;
}

void add(std::optional<double>& sum, std::optional<double> amount) {
    if (amount) {
        sum = sum.value_or(0) + *amount;
    }
}

std::optional<int> meanPercent(const Packs& packs) {
    int sum = 0;
    int count = 0;
    for (const auto& pack : packs) {
        sum += pack.content.percent.value_or(0);
        count += pack.content.percent ? 1 : 0;
    }
    return count > 0 ? std::optional(sum / count) : std::nullopt;
}

// A pack that tells only the percentage of an amount still weighs what this amounts to when full.
PackContent weighed(PackContent content) {
    if (!content.full && content.remaining && content.percent.value_or(0) > 0) {
        content.full = *content.remaining * 100.0 / *content.percent;
    }
    return content;
}

std::vector<PackContent> energiesOf(const Packs& packs) {
    std::vector<PackContent> energies;
    for (const auto& pack : packs) {
        energies.push_back(weighed(inMilliwattHours(pack.content, pack.referenceVolts)));
    }
    const auto firstPartial = std::stable_partition(energies.begin(), energies.end(), knowsBoth);
    if (firstPartial != energies.begin()) {
        energies.erase(firstPartial, energies.end());
    }
    return energies;
}

PackContent contentOf(const Packs& packs) {
    PackContent sum;
    sum.unit = ContentUnit::MilliwattHours;
    const auto energies = energiesOf(packs);
    for (const auto& energy : energies) {
        add(sum.design, energy.design);
        add(sum.full, energy.full);
        add(sum.remaining, energy.remaining);
    }
    const bool complete = knowsBoth(energies.front());
    sum.percent = complete ? truncatedPercent(*sum.remaining, *sum.full) : meanPercent(packs);
    return sum;
}

bool isInUse(const BatteryPack& pack) {
    return pack.status == PackStatus::Charging || pack.status == PackStatus::Discharging;
}

std::optional<double> presentVolts(const Packs& packs) {
    std::optional<double> volts;
    for (const auto& pack : packs) {
        if (pack.volts && isInUse(pack)) {
            return pack.volts;
        }
        volts = volts ? volts : pack.volts;
    }
    return volts;
}

template <typename Value>
std::optional<Value> firstKnown(const Packs& packs, std::optional<Value> BatteryPack::*member) {
    const auto pack =
        std::find_if(packs.begin(), packs.end(), [member](const BatteryPack& p) { return p.*member; });
    return pack == packs.end() ? std::nullopt : (*pack).*member;
}

std::optional<std::int64_t> mostCycles(const Packs& packs) {
    std::optional<std::int64_t> most;
    for (const auto& pack : packs) {
        most = std::max(most, pack.cycles);
    }
    return most;
}

PackFlow flowOf(const Packs& packs, std::optional<double> volts) {
    PackFlow sum;
    for (const auto& pack : packs) {
        add(sum.watts, pack.flow.watts);
    }
    if (sum.watts && volts) {
        sum.milliamperes = *sum.watts * 1000.0 / *volts;
    }
    return sum;
}

// The direction of the sum, if a pack says that it flows that way: an unsigned flow alone has none.
PackStatus statusOf(const Packs& packs, const PackFlow& flow) {
    const auto has = [&packs](PackStatus status) {
        return std::any_of(packs.begin(), packs.end(),
                           [status](const BatteryPack& pack) { return pack.status == status; });
    };
    const double watts = flow.watts.value_or(0);
    if (watts < 0 && has(PackStatus::Discharging)) {
        return PackStatus::Discharging;
    }
    return watts > 0 && has(PackStatus::Charging) ? PackStatus::Charging : PackStatus::Unknown;
}

} // namespace

BatteryPack combined(const Packs& packs) {
    if (packs.size() == 1) {
        return packs.front();
    }
    BatteryPack whole;
    whole.content = contentOf(packs);
    whole.volts = presentVolts(packs);
    whole.referenceVolts = firstKnown(packs, &BatteryPack::referenceVolts);
    whole.flow = flowOf(packs, whole.volts);
    whole.status = statusOf(packs, whole.flow);
    whole.minutesLeft = isInUse(whole) ? minutesLeft(whole.content, whole.flow) : std::nullopt;
    whole.cycles = mostCycles(packs);
    whole.centidegrees = firstKnown(packs, &BatteryPack::centidegrees);
    whole.answers = std::any_of(packs.begin(), packs.end(), [](const BatteryPack& p) { return p.answers; });
    return whole;
}

} // namespace quelby
