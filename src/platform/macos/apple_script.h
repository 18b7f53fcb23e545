#pragma once

#include <string>

namespace quelby {

// Runs a source text in AppleScript and waits for it. What asks for the password is the script's own clause
// "with administrator privileges". False where it is not UTF-8 or not AppleScript, where the user did not
// agree, and where it ended with a failure.
[[nodiscard]] bool runAppleScript(const std::string& source);

} // namespace quelby
