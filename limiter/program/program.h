#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "limiter/program/clock.h"
#include "limiter/program/options.h"
#include "limiter/program/wakeups.h"

namespace quelby::limiter {

// The time that the program lives in. The wakeups are made once they are needed: from then on signals do not
// end the process any more.
struct Time {
    Clock& clock;
    std::function<std::unique_ptr<Wakeups>()> wakeups;
};

// The whole program: its words after the name, and its exit status.
[[nodiscard]] int runProgram(const std::vector<std::string>& words, const Time& time);

} // namespace quelby::limiter
