#pragma once

#include <string>

#include "helper/daemon_status.h"

namespace quelby::limiter {

// The content of status.json, which decodeDaemonStatus() reads.
[[nodiscard]] std::string encode(const DaemonStatus& status);

} // namespace quelby::limiter
