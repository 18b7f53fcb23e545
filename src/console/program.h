#pragma once

#include <functional>
#include <string_view>

#include "base/problem.h"
#include "console/machine_arguments.h"
#include "console/utf8_locale.h"

namespace quelby {

// Says on standard error what could not be done, and gives the exit status.
[[nodiscard]] int reportOutcome(std::string_view name, const Result<void>& outcome);

// Does a program's work in the user's locale and with an application object of Qt's, says what could not be
// done, and gives the exit status.
template <typename Application>
[[nodiscard]] int runProgramWith(std::string_view name, char** argv,
                                 const std::function<Result<void>()>& work) {
    useUtf8Locale();
    int programNameOnly = 1; // Qt has no say in the other arguments
    const Application application(programNameOnly, argv);
    return reportOutcome(name, work());
}

// The same for a program without a user interface.
[[nodiscard]] int runProgram(std::string_view name, char** argv, const std::function<Result<void>()>& work);

// Prints the answer where it belongs and gives the exit status.
[[nodiscard]] int printAnswer(std::string_view name, const Answer& answer);

} // namespace quelby
