// A laptop whose battery charges, holds and empties as the levels in its attributes say.
#pragma once

#include <string>

#include "limiter/kernel/attributes.h"

namespace quelby::limiter {

class SimulatedLaptop {
public:
    // Its attributes, which this makes; they are those of a battery with both levels.
    explicit SimulatedLaptop(Attributes& attributes) : attributes_(attributes) {}

    void plug(bool isPlugged) { plugged_ = isPlugged; }

    // Lets the time pass, and tells what became of it.
    void pass(double seconds);

    [[nodiscard]] double percent() const { return percent_; }

private:
    [[nodiscard]] double level(const char* name, double otherwise) const;

    Attributes& attributes_;
    bool plugged_ = true;
    bool charging_ = false;
    double percent_ = 50;
};

} // namespace quelby::limiter
