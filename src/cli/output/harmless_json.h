#pragma once

#include <string>

namespace quelby::cli {

// The same JSON, in which what a terminal would obey, or what turns the direction of a line, is written as one of
// JSON's own escapes. A name in a recording may be anybody's.
[[nodiscard]] std::string harmless(std::string json);

} // namespace quelby::cli
