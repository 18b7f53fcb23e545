// What the charge-limit helper is called, and where each system keeps it.
#pragma once

#include <string_view>

namespace quelby {

// The executable, in the program's resources as well as where it is installed.
inline constexpr std::string_view helperExecutableName = "pwr_limiter";

namespace macos_helper {

inline constexpr std::string_view label = "com.quelby.limiter"; // for launchd
inline constexpr std::string_view folder = "/Library/Application Support/Quelby";
inline constexpr std::string_view executableFolder = "/Library/PrivilegedHelperTools";
inline constexpr std::string_view executable = "/Library/PrivilegedHelperTools/pwr_limiter";
inline constexpr std::string_view propertyList = "/Library/LaunchDaemons/com.quelby.limiter.plist";

} // namespace macos_helper

namespace linux_helper {

inline constexpr std::string_view service = "com.quelby.limiter.service"; // for systemd
inline constexpr std::string_view folder = "/var/lib/quelby";
inline constexpr std::string_view stateFolder = "/var/lib/quelby-limiter"; // the helper's own
inline constexpr std::string_view executable = "/usr/local/libexec/pwr_limiter";
inline constexpr std::string_view unit = "/etc/systemd/system/com.quelby.limiter.service";

} // namespace linux_helper

} // namespace quelby
