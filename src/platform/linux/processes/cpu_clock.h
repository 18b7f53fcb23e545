#pragma once

#include <cstdint>
#include <optional>

#include <sys/types.h>

namespace quelby {

// A process's CPU-time clock. It moves whenever the process runs, so one that stands still says that nothing
// of the process has changed, its name included; asking costs a tenth of reading a file of the process.
class CpuClock {
public:
    // Nothing where the system does not tell.
    [[nodiscard]] static std::optional<CpuClock> of(pid_t pid);

    // Nothing once the process has ended.
    [[nodiscard]] std::optional<std::uint64_t> nanoseconds() const;

private:
    explicit CpuClock(clockid_t clock) : clock_(clock) {}

    clockid_t clock_;
};

} // namespace quelby
