#pragma once

#include "platform/privileged_shell.h"

namespace quelby {

// pkexec asks with the desktop's own dialog, or in the terminal. It does not ask a
// user who is root already.
class PkexecShell final : public PrivilegedShell {
public:
    [[nodiscard]] bool run(const std::string& script) override;
};

} // namespace quelby
