#pragma once

#include <string>
#include <string_view>

namespace quelby::cli {

// The columns that a line of UTF-8 takes in a terminal: two for the wide characters of East Asian scripts and
// for most pictographs, none for combining marks (Unicode Standard Annex 11). Escape sequences are not
// expected.
[[nodiscard]] int displayWidth(std::string_view text);

// Exactly this many columns: cut at its end with "…", or filled with blanks.
[[nodiscard]] std::string fitted(std::string_view text, int columns);

} // namespace quelby::cli
