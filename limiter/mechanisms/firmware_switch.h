#pragma once

#include <memory>

#include "limiter/kernel/attributes.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// A switch of a maker's own driver, 1 or 0, for the one level that the firmware has, in %: absent where models differ
// and none tells.
[[nodiscard]] std::unique_ptr<Mechanism> firmwareSwitch(Attributes& attributes, std::string attribute,
                                                        std::string name, std::optional<int> level);

} // namespace quelby::limiter
