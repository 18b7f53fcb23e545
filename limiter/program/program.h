#pragma once

#include "base/problem.h"
#include "limiter/program/clock.h"
#include "limiter/program/options.h"

namespace quelby::limiter {

// Does what is asked for. The problem says what could not be done, and why.
[[nodiscard]] Result<void> carryOut(const Options& options, Clock& clock);

// The whole program: its words after the name, and its exit status.
[[nodiscard]] int runProgram(const std::vector<std::string>& words, Clock& clock);

} // namespace quelby::limiter
