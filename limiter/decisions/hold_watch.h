#pragma once

#include <optional>
#include <vector>

#include "limiter/kernel/power_supplies.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// The battery looks held: fed from outside, at or above the level in force, and taking no charge.
[[nodiscard]] bool looksHeld(bool externalPower, const Battery& battery, const Level& inForce);

// Whether the battery is held, and not merely between two moments of charging: it has to look so twice, some
// time apart.
class HoldWatch {
public:
    static constexpr double apart = 3; // seconds

    // The time counts seconds from anywhere, and never runs backwards.
    void look(bool looksHeld, double time);

    [[nodiscard]] bool isHeld() const { return held_; }

    // A second look will tell.
    [[nodiscard]] bool isUndecided() const { return since_.has_value() && !held_; }

private:
    std::optional<double> since_;
    bool held_ = false;
};

} // namespace quelby::limiter
