// What the program asks of a computer's processes: two listings in the form of ps, as text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quelby {

// A process's share of CPU time is in percent of one logical processor, so it can exceed 100.
class ProcessLister {
public:
    virtual ~ProcessLister() = default;

    // A heading line, then the share of every process of every user, a line each; those that have used
    // nothing may be missing. Nothing while the processes cannot be read. The cycle asks for this listing first:
    // an implementation may scan the processes here and answer topListing() from the same scan.
    [[nodiscard]] virtual std::optional<std::string> cpuListing() = 0;

    // A heading line, then a line for each process, the highest share first: the share, a blank, the
    // executable's short name (no folder, no arguments; blanks are possible). Nothing while
    // the processes cannot be read.
    [[nodiscard]] virtual std::optional<std::string> topListing() = 0;

    // In the form of the top listing, in any order, a line for each process that has used CPU time: its share,
    // a blank, and the name of its application as people know it, which may stand in several lines; a process
    // that belongs to no application stands under its short name. To be asked for behind the other two, and
    // from the same scan. Nothing where this system does not tell which process belongs to which application.
    [[nodiscard]] virtual std::optional<std::string> applicationListing() { return std::nullopt; }

    // Configured logical processors, sleeping ones included; at least 1.
    [[nodiscard]] virtual std::int64_t logicalProcessors() = 0;
};

} // namespace quelby
