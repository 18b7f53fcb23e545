#pragma once

#include <algorithm>
#include <cmath>

namespace quelby {

// How often a glide is drawn, which costs more than all else that an open dashboard does. So many steps within
// a tenth of a second are as many as a person sees.
inline constexpr int glideSteps = 4;

// Of a part of a whole: what is nearer is shown at once, because it would be pixels of a bar.
inline constexpr double smallestGlide = 0.01;

// How far a glide shows itself to be when so much of its time is over (0 to 1): in steps, each smaller than the
// one before. The first is there at once, drawn with all else that changed.
[[nodiscard]] inline double glided(double time) {
    const double left = std::max(0.0, 1 - (std::floor(time * glideSteps) + 1) / glideSteps);
    return 1 - left * left * left;
}

} // namespace quelby
