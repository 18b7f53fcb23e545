// Other programs that set charge levels, as far as they are known.
#pragma once

#include <filesystem>
#include <string>

#include "limiter/kernel/attributes.h"

namespace quelby::limiter {

// Those of them whose service runs, "TLP or UPower", or "another program or the firmware". What runs is told
// by the groups of processes in the kernel's tree, and by the service manager's own folder for services that
// have done their work already; an empty path leaves that out.
[[nodiscard]] std::string runningRivals(const Attributes& attributes,
                                        const std::filesystem::path& serviceManagerFolder);

} // namespace quelby::limiter
