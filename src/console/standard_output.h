#pragma once

#include <string_view>

#include "base/problem.h"

namespace quelby {

// At once and whole, so that what reads from a pipe sees each cycle when it happens.
[[nodiscard]] Result<void> writeToStandardOutput(std::string_view text);

// Nothing can be said about a failure here.
void writeToStandardError(std::string_view text);

} // namespace quelby
