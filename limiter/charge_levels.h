// Charge levels that the whole helper knows, in percent of full charge.
#pragma once

namespace quelby::limiter {

inline constexpr int fullLevel = 100;

// Between the level at which charging stops and the one at which it begins again: the least that every known driver
// allows.
inline constexpr int stepToStart = 5;

} // namespace quelby::limiter
