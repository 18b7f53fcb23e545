// The program that a package's polkit action is for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quelby {

// A program of /bin/sh that runs the one of these scripts which it is given, and nothing else: the dialog that asks
// for the password vouches for what it does, so it must be of no use to anybody who wants something else done as root.
[[nodiscard]] std::string rootProgram(const std::vector<std::string>& scripts);

// Whether such a program, by its text, runs the script.
[[nodiscard]] bool runsScript(std::string_view rootProgram, std::string_view script);

} // namespace quelby
