#pragma once

#include <string>
#include <string_view>

#include <sys/types.h>

#include "platform/linux/processes/proc_directory.h"

namespace quelby {

// The listed name of the process whose stat file gives this name. Costs up to two files where that one may
// be cut, so it is worth keeping until the stat file gives another.
[[nodiscard]] std::string processName(pid_t pid, std::string_view escapedComm, ProcDirectory& directory);

} // namespace quelby
