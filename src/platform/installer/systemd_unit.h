#pragma once

#include <filesystem>
#include <string>

#include "platform/helper_names.h"

namespace quelby {

// The unit that makes the charge-limit helper a systemd service, as systemd.service(5) and systemd.exec(5)
// describe it: started at every boot, and again whenever it exits; able to write to the helper's two
// folders and to /sys, and to little else. The path of the helper has no blank and no percent sign. Each line
// ends with a newline.
[[nodiscard]] std::string systemdUnit(const std::filesystem::path& helper = linux_helper::executable);

} // namespace quelby
