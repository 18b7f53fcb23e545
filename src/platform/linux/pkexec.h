#pragma once

#include <string>

namespace quelby {

// Runs a script of /bin/sh as root and waits for it. pkexec asks for the password, with the desktop's own
// dialog or in the terminal; a user who is root already is asked nothing. False where it could not be run,
// where the user did not agree, and where the script ended with a failure.
[[nodiscard]] bool runWithPkexec(const std::string& script);

} // namespace quelby
