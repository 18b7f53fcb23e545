#pragma once

#include <optional>

#include "platform/linux/battery/external_power.h"
#include "platform/linux/battery/pack_content.h"

namespace quelby {

// What flows into a pack (positive) or out of it (negative). Both are known if one is and the voltage, too.
struct PackFlow {
    std::optional<double> milliamperes;
    std::optional<double> watts;
};

// Volts at present, and the nominal ones that turn an energy into a charge (the present ones where the design
// is not known); nothing if the driver gives a sentinel.
[[nodiscard]] std::optional<double> voltsOf(const RawPack& pack);
[[nodiscard]] std::optional<double> referenceVoltsOf(const RawPack& pack);

// The direction comes from the status, since most drivers leave out the sign and some change it from one
// kernel to the next; without a direction in the status the driver's own sign stays. Sentinels are nothing.
[[nodiscard]] PackFlow flowOf(const RawPack& pack, PackStatus status);

// Minutes until a pack with this content is empty or full at this flow, whichever it flows towards; nothing
// below one minute, from 100 hours on, and where a value is missing.
[[nodiscard]] std::optional<double> minutesLeft(const PackContent& content, const PackFlow& flow);

// Nothing unless from one minute to below 100 hours: beyond is an idle pack, or a sentinel.
[[nodiscard]] std::optional<double> believableMinutes(double minutes);

} // namespace quelby
