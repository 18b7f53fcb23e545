// The living processes, and what is known of each from one scan to the next.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <sys/types.h>

#include "platform/linux/processes/cpu_clock.h"
#include "platform/linux/processes/cpu_share.h"
#include "platform/linux/processes/stat_text.h"
#include "platform/posix/file_descriptor.h"

namespace quelby {

struct Process {
    pid_t pid = 0;
    FileDescriptor statFile; // closed unless it is kept from one scan to the next
    std::optional<CpuClock> clock;
    std::optional<std::uint64_t> clockNanoseconds; // before the counters were read
    CpuCounters counters;
    CpuShare share;
    std::string escapedComm; // that the name was made from
    std::string name;        // for a listing
    std::string
        application; // that it belongs to, as people call it; empty where there is none or nobody has looked
    int looksForApplication = 0;
};

// In ascending order of pid, and never more than the last scan has seen.
class ProcessTable {
public:
    // Forgets whoever is not in the list, which is in ascending order, and adds whoever is new.
    void follow(std::span<const pid_t> pids);

    // Calls `isAlive(Process&)` once for each process, in order, and forgets those it answers false for. Where
    // it throws, that one and those behind it stay.
    template <typename IsAlive>
    void keepWhere(IsAlive isAlive) {
        Gap gap(processes_);
        for (; gap.end != processes_.end(); ++gap.end) {
            if (isAlive(*gap.end)) {
                keepAt(*gap.begin++, *gap.end);
            }
        }
    }

    void clear() { processes_.clear(); }

    [[nodiscard]] std::span<const Process> processes() const { return processes_; }

    [[nodiscard]] std::span<Process> processes() { return processes_; }

private:
    // Those that are forgotten, as long as the others are still being asked.
    struct Gap {
        explicit Gap(std::vector<Process>& all)
            : processes(all), begin(processes.begin()), end(processes.begin()) {}

        Gap(const Gap&) = delete;
        Gap& operator=(const Gap&) = delete;

        ~Gap() { processes.erase(begin, end); }

        std::vector<Process>& processes;
        std::vector<Process>::iterator begin;
        std::vector<Process>::iterator end;
    };

    static void keepAt(Process& place, Process& process) {
        if (&place != &process) {
            place = std::move(process);
        }
    }

    std::vector<Process> processes_;
    std::vector<Process> next_; // empty between calls; its memory is used again
};

} // namespace quelby
