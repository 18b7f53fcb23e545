#pragma once

#include <optional>
#include <string>

#include "limiter/kernel/machine_facts.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// All that the one sentence about a machine goes by.
struct Situation {
    bool hasBattery = false;
    bool hasMechanism = false;
    bool holdsByItself = true;
    bool limitWanted = false;
    int wishedPercent = 80;
    Level inForce;                               // of the first battery that can be limited
    std::optional<std::string> calibrationPhase; // while one is under way
    std::optional<std::string> winner;           // who keeps the level as it is
    std::optional<std::string> error;            // one sentence without a full stop
};

// What holds now, or what this machine lacks.
[[nodiscard]] std::string explanation(const Situation& situation, const MachineFacts& machine);

} // namespace quelby::limiter
