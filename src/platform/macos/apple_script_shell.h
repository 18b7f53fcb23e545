#pragma once

#include "platform/privileged_shell.h"

namespace quelby {

// The scripts are sources in AppleScript. What asks for the password is the script's own clause "with
// administrator privileges".
class AppleScriptShell final : public PrivilegedShell {
public:
    // False also for a script that is not UTF-8 or not AppleScript.
    [[nodiscard]] bool run(const std::string& script) override;
};

} // namespace quelby
