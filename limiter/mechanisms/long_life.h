#pragma once

#include <memory>

#include "limiter/kernel/attributes.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// charge_types = Long_Life, on machines whose firmware has one level of its own and no other. Nothing where this battery
// has no such type.
[[nodiscard]] std::unique_ptr<Mechanism> longLife(Attributes& attributes, const std::string& batteryFolder);

} // namespace quelby::limiter
