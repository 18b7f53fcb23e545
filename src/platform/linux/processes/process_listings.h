// The listings of ProcessLister, in ps's manner. Shares have two decimals: a tick of ten milliseconds is
// a third of a percent of three seconds, and one decimal would swallow most of what idle programs use.
#pragma once

#include <span>
#include <string>

#include "platform/linux/processes/process_table.h"

namespace quelby {

// Only of who has used anything: whoever adds the shares up, cycle after cycle, need not read the zeros.
[[nodiscard]] std::string cpuListingText(std::span<const Process> processes);

// Equal shares, as they are printed, keep the order of the processes.
[[nodiscard]] std::string topListingText(std::span<const Process> processes);

// Only who has used anything, under the name of the application where that is known.
[[nodiscard]] std::string applicationListingText(std::span<const Process> processes);

} // namespace quelby
