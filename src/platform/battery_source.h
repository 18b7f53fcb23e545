// What the program asks of a computer's battery. The one place where a system's units, signs and sentinels
// are put right is an implementation of this interface; nobody behind it knows of micro-anything.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <variant>

namespace quelby {

// Text keys to integers and Booleans. A key that the battery cannot answer is absent, and 0 only where
// absence would let another key speak in its place. The keys that the monitor reads, after the property table
// that macOS publishes for a battery:
//
//   DesignCapacity          mAh, when new
//   AppleRawMaxCapacity     mAh, full at present
//   AppleRawCurrentCapacity mAh, remaining; 0 where only the percentage is known
//   MaxCapacity             mAh or %, where the raw value is missing
//   CurrentCapacity         mAh or %, where the raw value is missing
//   CycleCount              charge cycles
//   IsCharging              Boolean, as are the next two
//   ExternalConnected
//   FullyCharged
//   InstantAmperage         mA, negative while discharging; above 30000: a negative number in 16 bits
//   Voltage                 mV
//   Temperature             hundredths of a degree Celsius
//   TimeRemaining           minutes to empty or to full, by the system's own estimate
//
using PropertyValue = std::variant<bool, std::int64_t>;
using PropertyTable = std::map<std::string, PropertyValue, std::less<>>;

struct NoBattery {
    bool operator==(const NoBattery&) const = default;
};

// There is a battery, but it answers nothing at the moment.
struct UnreadableBattery {
    bool operator==(const UnreadableBattery&) const = default;
};

using BatteryReading = std::variant<NoBattery, UnreadableBattery, PropertyTable>;

class BatterySource {
public:
    virtual ~BatterySource() = default;

    // Called once a cycle, and before anything else is asked of the computer in that cycle; on the main
    // thread. Never throws, and takes a few milliseconds at most.
    [[nodiscard]] virtual BatteryReading readBattery() = 0;
};

} // namespace quelby
