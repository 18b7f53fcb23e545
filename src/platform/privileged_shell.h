#pragma once

#include <string>

namespace quelby {

// Runs scripts as root, after the user has agreed with the administrator's password.
class PrivilegedShell {
public:
    virtual ~PrivilegedShell() = default;

    // Waits for the user and for the script. False where it could not be run, where the user did not agree,
    // and where it ended with a failure.
    [[nodiscard]] virtual bool run(const std::string& script) = 0;
};

} // namespace quelby
