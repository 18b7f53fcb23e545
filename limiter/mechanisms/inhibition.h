#pragma once

#include <memory>

#include "limiter/kernel/attributes.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// charge_behaviour, where it is all that a machine has: charging is switched off at the limit, and on again some percent
// below, for as long as somebody watches the battery. Nothing where this battery cannot be inhibited.
[[nodiscard]] std::unique_ptr<Mechanism> inhibition(Attributes& attributes, const std::string& batteryFolder);

} // namespace quelby::limiter
