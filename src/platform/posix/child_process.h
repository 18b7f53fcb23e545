#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quelby {

// Runs a program to its end, with nothing on its standard input and its output thrown away, and gives its
// exit status (128 and the signal's number where a signal ended it). The first word is looked for in $PATH,
// unless it is a path. Nothing where it could not be started.
[[nodiscard]] std::optional<int> runToTheEnd(const std::vector<std::string>& words);

// Runs a program to its end in the given environment ("NAME=value", each), with nothing on its standard input
// and its standard error thrown away, and gives all that it wrote to its standard output, however it ended.
// The first word is looked for in $PATH, unless it is a path. Nothing where it could not be started.
[[nodiscard]] std::optional<std::string> outputOf(const std::vector<std::string>& words,
                                                  const std::vector<std::string>& environment);

// This process's own.
[[nodiscard]] std::vector<std::string> environmentVariables();

} // namespace quelby
