#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quelby {

// Runs a script of /bin/sh as root and waits for it. pkexec asks for the password, with the desktop's own
// dialog or in the terminal; a user who is root already is asked nothing. False where it could not be run,
// where the user did not agree, and where the script ended with a failure.
//
// Where a package has installed this program's own polkit action, and the program that it is for knows the
// script, the dialog says what the password is needed for; otherwise it names the shell.
[[nodiscard]] bool runWithPkexec(const std::string& script);

// What is started for it. The root is the folder that takes the place of / where packages install.
[[nodiscard]] std::vector<std::string> pkexecWords(const std::string& script, bool isRoot,
                                                   const std::filesystem::path& root = "/");

} // namespace quelby
