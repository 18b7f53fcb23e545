#pragma once

#include <cstdint>

namespace quelby {

// Configured logical processors, sleeping ones included; at least 1.
[[nodiscard]] std::int64_t configuredProcessors();

} // namespace quelby
