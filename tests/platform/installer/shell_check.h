#pragma once

#include <gtest/gtest.h>

#include "support/program.h"
#include "support/temporary_folder.h"

namespace quelby {

// shellcheck has nothing to say about the POSIX shell script.
[[nodiscard]] inline testing::AssertionResult passesShellcheck(const std::string& script) {
    const TemporaryFolder folder;
    const auto file = folder.write("script", script + '\n');
    const auto check = runProgram({"/usr/bin/env", "shellcheck", "--norc", "--shell=sh", file});
    return check.exitStatus == 0 && check.output.empty()
               ? testing::AssertionSuccess()
               : testing::AssertionFailure() << check.output << check.errors;
}

} // namespace quelby
