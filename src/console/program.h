#pragma once

#include <functional>
#include <string_view>

#include "base/problem.h"
#include "console/machine_arguments.h"

namespace quelby {

// Does a program's work in the user's locale and with Qt's application object, says on standard error what
// could not be done, and gives the exit status.
[[nodiscard]] int runProgram(std::string_view name, char** argv, const std::function<Result<void>()>& work);

// Prints the answer where it belongs and gives the exit status.
[[nodiscard]] int printAnswer(std::string_view name, const Answer& answer);

} // namespace quelby
