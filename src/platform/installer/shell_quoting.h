#pragma once

#include <string>
#include <string_view>

namespace quelby {

// The text as one word of a POSIX shell, whatever characters it has (a zero byte, which no word can have,
// aside).
[[nodiscard]] std::string shellQuoted(std::string_view text);

} // namespace quelby
