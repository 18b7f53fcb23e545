// UTF-8, as RFC 3629 and table 3-7 of the Unicode Standard define well-formed text.
#pragma once

#include <string>
#include <string_view>

namespace quelby {

[[nodiscard]] bool isUtf8(std::string_view text);

// The text as one printable line: every control character and every byte that is not UTF-8 becomes '?'.
// For names that other people choose, such as those of processes.
[[nodiscard]] std::string printable(std::string_view text);

} // namespace quelby
