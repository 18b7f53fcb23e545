#pragma once

#include <string>

namespace quelby {

// One row of the list of the busiest processes; the row's position is its only identity.
struct ProcessInfo_Energy {
    std::string name;          // the executable's short name: no folder, no arguments; may contain blanks
    double cpu = 0;            // % of one logical processor, so it can exceed 100
    double estimatedWatts = 0; // W, the part of `cpuPower` attributed to the process

    bool operator==(const ProcessInfo_Energy&) const = default;
};

} // namespace quelby
