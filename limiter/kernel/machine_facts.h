#pragma once

#include <string>

#include "limiter/kernel/attributes.h"

namespace quelby::limiter {

// As far as it matters for what its battery could do.
struct MachineFacts {
    std::string vendor;  // as the firmware names it; may be empty
    std::string product; // likewise
    std::string kernel;  // "6.1.0-13-amd64"
};

[[nodiscard]] MachineFacts readMachineFacts(const Attributes& attributes);

} // namespace quelby::limiter
