#pragma once

#include <string>

namespace quelby {

// The unit that makes the charge-limit helper a systemd service, as systemd.service(5) and systemd.exec(5)
// describe it: started at every boot, and again whenever it exits; able to write to the helper's two
// folders and to /sys, and to little else. Each line ends with a newline.
[[nodiscard]] std::string systemdUnit();

} // namespace quelby
