#pragma once

#include <memory>
#include <vector>

#include "limiter/kernel/attributes.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// An attribute of a maker's own driver that takes one of a few levels, in % and rising, the highest of which is no
// limit.
[[nodiscard]] std::unique_ptr<Mechanism> careLevels(Attributes& attributes, std::string attribute,
                                                    std::string name, std::vector<int> levels);

} // namespace quelby::limiter
