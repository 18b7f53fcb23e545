// How a system's service manager is asked whether the charge-limit helper is loaded.
#pragma once

#include <string>
#include <vector>

namespace quelby {

// To be run with its output thrown away. Its exit status is 0 if the helper is loaded, and only then; that
// the program cannot be started means no.
struct ServiceQuery {
    std::string program; // a path, or a name to be looked up in PATH
    std::vector<std::string> arguments;

    bool operator==(const ServiceQuery&) const = default;
};

[[nodiscard]] ServiceQuery launchdQuery(); // macOS
[[nodiscard]] ServiceQuery systemdQuery(); // Linux

} // namespace quelby
