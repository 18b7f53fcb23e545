#pragma once

#include "platform/privileged_shell.h"

namespace quelby {

// pkexec asks with the desktop's own dialog, or in the terminal. Who is root already is not asked.
class PkexecShell final : public PrivilegedShell {
public:
    [[nodiscard]] bool run(const std::string& script) override;
};

} // namespace quelby
