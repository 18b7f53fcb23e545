#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/privileged_shell.h"

namespace quelby {

// pkexec asks with the desktop's own dialog, or in the terminal. Who is root already is not asked.
//
// Where a package has installed this program's own polkit action and the program that it is for, the dialog
// says what the password is needed for; otherwise it names the shell.
class PkexecShell final : public PrivilegedShell {
public:
    [[nodiscard]] bool run(const std::string& script) override;

    // What run() starts. The root is the folder that takes the place of / where packages install.
    [[nodiscard]] static std::vector<std::string> words(const std::string& script, bool isRoot,
                                                        const std::filesystem::path& root = "/");
};

} // namespace quelby
