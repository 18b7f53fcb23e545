// UTF-8, as RFC 3629 and table 3-7 of the Unicode Standard define well-formed text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quelby {

struct Utf8Sequence {
    std::size_t length = 0; // bytes; 0: no well-formed sequence starts there
    std::uint32_t codePoint = 0;
};

// The character that starts at the position, which lies within the text.
[[nodiscard]] Utf8Sequence utf8SequenceAt(std::string_view text, std::size_t position);

[[nodiscard]] bool isUtf8(std::string_view text);

// The text as one printable line: every control character and every byte that is not UTF-8 becomes '?'.
// For names that other people choose, such as those of processes.
[[nodiscard]] std::string printable(std::string_view text);

} // namespace quelby
