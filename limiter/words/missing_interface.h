#pragma once

#include <string>

#include "limiter/kernel/machine_facts.h"

namespace quelby::limiter {

// Why this machine's battery cannot be limited, as one sentence; with the kernel since which its maker's
// driver could, where that is known.
[[nodiscard]] std::string missingInterface(const MachineFacts& machine);

} // namespace quelby::limiter
