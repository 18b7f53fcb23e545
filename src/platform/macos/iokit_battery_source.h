#pragma once

#include "platform/battery_source.h"

namespace quelby {

// The battery as the I/O registry's service of class AppleSmartBattery describes it, looked up anew each
// time. Every integer and every Boolean of its property table is passed on as it stands; whatever is of
// another type is left out. A table that has a key other than a text is unreadable.
class IokitBatterySource final : public BatterySource {
public:
    [[nodiscard]] BatteryReading readBattery() override;
};

} // namespace quelby
