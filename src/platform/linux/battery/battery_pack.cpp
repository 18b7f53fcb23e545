#include "platform/linux/battery/battery_pack.h"

namespace quelby {

namespace {

PackStatus statusFrom(const std::optional<std::string>& word) {
    if (word == "charging") {
        return PackStatus::Charging;
    }
    if (word == "discharging") {
        return PackStatus::Discharging;
    }
    if (word == "not charging") {
        return PackStatus::NotCharging;
    }
    return word == "full" ? PackStatus::Full : PackStatus::Unknown;
}

// 0 means "not available"; the gauges' registers hold 16 bits, all of them set when empty.
std::optional<std::int64_t> cyclesFrom(RawNumber count) {
    return count && *count > 0 && *count < 65535 ? count : std::nullopt;
}

// From -60 to 150 °C; a register of zeros is -273.1 °C.
std::optional<std::int64_t> centidegreesFrom(RawNumber tenths) {
    return tenths && *tenths >= -600 && *tenths <= 1500 ? std::optional(*tenths * 10) : std::nullopt;
}

// 100 is no limit, nor is what is no percentage of a charge.
std::optional<std::int64_t> endThresholdFrom(RawNumber percent) {
    return percent && *percent > 0 && *percent < 100 ? percent : std::nullopt;
}

std::optional<double> toldMinutes(const RawPack& raw, PackStatus status) {
    const auto seconds = status == PackStatus::Charging      ? raw.timeToFullNow
                         : status == PackStatus::Discharging ? raw.timeToEmptyNow
                                                             : std::nullopt;
    return seconds ? believableMinutes(static_cast<double>(*seconds) / 60.0) : std::nullopt;
}

std::optional<double> minutesFrom(const RawPack& raw, const BatteryPack& pack) {
    const bool moves = pack.status == PackStatus::Charging || pack.status == PackStatus::Discharging;
    const auto told = toldMinutes(raw, pack.status);
    return told || !moves ? told : minutesLeft(pack.content, pack.flow);
}

bool answers(const RawPack& raw, const BatteryPack& pack) {
    const auto& content = pack.content;
    return raw.status || raw.currentNow || raw.powerNow || pack.volts || content.design || content.full ||
           content.remaining || content.percent;
}

} // namespace

BatteryPack packFrom(const RawPack& raw) {
    BatteryPack pack;
    pack.status = statusFrom(raw.status);
    pack.content = contentOf(raw);
    pack.volts = voltsOf(raw);
    pack.referenceVolts = referenceVoltsOf(raw);
    pack.flow = flowOf(raw, pack.status);
    pack.minutesLeft = minutesFrom(raw, pack);
    pack.cycles = cyclesFrom(raw.cycleCount);
    pack.centidegrees = centidegreesFrom(raw.temp);
    pack.endThreshold = endThresholdFrom(raw.chargeControlEndThreshold);
    pack.answers = answers(raw, pack);
    return pack;
}

} // namespace quelby
