#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "monitor/process_info_energy.h"

namespace quelby {

// The first five processes of the top listing, in its order, each with its estimated part of `cpuPower` (W).
// Lines without a share and a name are passed over. Nothing if the listing is not UTF-8.
//
// The estimate divides a share of one processor by the load of the whole machine (`cpuUsage`, %), so on a
// machine with n processors the estimates can add up to n times `cpuPower`. That is meant so: it makes a busy
// process stand out.
[[nodiscard]] std::optional<std::vector<ProcessInfo_Energy>> topProcesses(std::string_view topListing,
                                                                          double cpuUsage, double cpuPower);

} // namespace quelby
