// How much CPU time a process uses, in percent of one logical processor. Pure arithmetic: whoever reads the
// counters hands in what was read, and when.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/linux/processes/stat_text.h"

namespace quelby {

struct ScanTime {
    double monotonicSeconds = 0; // stands still while the computer sleeps, so a night does not dilute a share
    double uptimeSeconds = 0;    // since boot, sleep included, as the start times of processes count
};

struct CpuScale {
    double ticksPerSecond = 100;
    std::int64_t logicalProcessors = 1;
};

// One process's share. The share is 0 to 100 times the number of logical processors, and always finite.
class CpuShare {
public:
    // What was used since the previous scan. For a process seen for the first time, which a reused pid is as
    // well, the average of its lifetime, as ps prints it; 0 in its first clock tick.
    //
    // Counters that run backwards, as the kernel's scaling can let them by a tick, give 0. A scan too close
    // to the previous one to measure anything keeps the share, and what was used since then counts later.
    void update(const CpuCounters& counters, const ScanTime& scan, const CpuScale& scale);

    [[nodiscard]] double percent() const { return percent_; }

private:
    struct Baseline {
        CpuCounters counters;
        double monotonicSeconds = 0;
    };

    std::optional<Baseline> baseline_;
    double percent_ = 0;
};

} // namespace quelby
