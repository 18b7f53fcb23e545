#pragma once

#include <chrono>

namespace quelby {

// From one cycle to the next, unless somebody asks otherwise. What is added up and shown of cycles counts on
// it, whatever interval they were really taken at.
inline constexpr std::chrono::seconds cycleInterval{3};

} // namespace quelby
