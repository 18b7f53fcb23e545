// The text of /proc/PID/stat, as proc(5) defines it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quelby {

// Both in clock ticks, sysconf(_SC_CLK_TCK) a second.
struct CpuCounters {
    std::uint64_t startTicks = 0; // after boot; with the pid, what tells a process from every other
    std::uint64_t usedTicks = 0;  // by all its threads, in user and kernel mode, without its children

    bool operator==(const CpuCounters&) const = default;
};

struct StatFields {
    std::string_view escapedComm; // a part of the text that was parsed
    CpuCounters counters;
};

// Nothing where the text is malformed or ends before the start time does.
[[nodiscard]] std::optional<StatFields> parseStat(std::string_view text);

// The kernel writes a newline in a name as "\n" and a backslash as "\\".
[[nodiscard]] std::string unescapedComm(std::string_view escapedComm);

} // namespace quelby
