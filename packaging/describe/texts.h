// Texts that are made from the description of a command line.
#pragma once

#include <string>
#include <string_view>

#include "packaging/describe/command_words.h"

namespace quelby::packaging {

// Functions that complete the command line, as each shell loads them from a folder for such.
[[nodiscard]] std::string bashCompletion(const CommandWords& program);
[[nodiscard]] std::string zshCompletion(const CommandWords& program);
[[nodiscard]] std::string fishCompletion(const CommandWords& program);

// The man page: a template in which the lines "@commands@" and "@options@" give way to what the command line
// says of itself, and "@version@" and "@date@" to those of the program.
[[nodiscard]] std::string manPage(const CommandWords& program, std::string_view page);

} // namespace quelby::packaging
