#pragma once

#include "limiter/kernel/power_supplies.h"
#include "limiter/mechanisms/mechanism.h"
#include "limiter/mechanisms/threshold_pair.h"

namespace quelby::limiter {

// The best way in which a battery can be limited here, or nothing. What belongs to the whole machine goes to
// its first battery.
[[nodiscard]] std::unique_ptr<Mechanism> probe(Attributes& attributes, const PowerSupplies& supplies,
                                               const Battery& battery, const Pause& pause);

} // namespace quelby::limiter
