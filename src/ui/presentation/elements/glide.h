#pragma once

#include <algorithm>

namespace quelby {

// How often a glide is drawn, which costs more than all else that an open dashboard does. So many steps within
// a tenth of a second are as many as a person sees.
inline constexpr int glideSteps = 3;
inline constexpr int glideStepDuration = 40; // ms

// Of a part of a whole: what is nearer is shown at once, because it would be pixels of a bar.
inline constexpr double smallestGlide = 0.01;

// How far a glide is after so many of its steps (0 to 1): each is smaller than the one before. The first is there
// at once, drawn with all else that changed.
[[nodiscard]] constexpr double glided(int steps) {
    const double left = std::max(0.0, 1 - static_cast<double>(steps) / glideSteps);
    return 1 - left * left;
}

} // namespace quelby
