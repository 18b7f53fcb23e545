#pragma once

#include <string>

namespace quelby {

// The property list that makes the charge-limit helper a launch daemon, as launchd.plist(5) describes it:
// started at once and at every boot, and again whenever it exits. Each line ends with a newline.
[[nodiscard]] std::string launchdPropertyList();

} // namespace quelby
