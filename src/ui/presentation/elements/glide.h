#pragma once

#include <cmath>

namespace quelby {

// How often a glide is drawn, which costs more than all else that an open dashboard does. So many steps within an eighth of
// a second are as many as a person can tell apart.
inline constexpr int glideSteps = 4;

// How far a glide shows itself to be when so much of its time is over (0 to 1): in steps, each smaller than the one before.
// Nothing has moved before the first, and all is there with the last.
[[nodiscard]] inline double glided(double time) {
    const double left = 1 - std::floor(time * glideSteps) / glideSteps;
    return 1 - left * left * left;
}

} // namespace quelby
