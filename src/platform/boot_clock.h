#pragma once

#include "platform/clock.h"

namespace quelby {

// Now. The build picks the system's own definition.
[[nodiscard]] TimeSinceBoot timeSinceBoot();

} // namespace quelby
