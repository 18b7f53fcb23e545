#pragma once

#include <array>
#include <string>
#include <string_view>

namespace quelby::cli {

// A number in figures that are three rows high. Characters other than digits, "." and "-" become blanks.
[[nodiscard]] std::array<std::string, 3> bigFigures(std::string_view number);

} // namespace quelby::cli
