#include "base/utf8.h"

#include <cstring>

namespace quelby {

namespace {

bool isControl(std::uint32_t codePoint) {
    const bool lineBreak = codePoint == 0x2028 || codePoint == 0x2029;
    // Marks that turn the direction of what follows them, which a name could use to disguise a line.
    const bool direction =
        (codePoint >= 0x202A && codePoint <= 0x202E) || (codePoint >= 0x2066 && codePoint <= 0x2069);
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0) || lineBreak || direction;
}

// How many bytes from the first on are ASCII; looked at in words, since most texts are nothing else.
std::size_t asciiLength(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::size_t length = 0;
    for (std::uint64_t word = 0; text.size() - length >= sizeof word; length += sizeof word) {
        std::memcpy(&word, text.data() + length, sizeof word);
        if ((word & highBits) != 0) {
            break;
        }
    }
    while (length < text.size() && static_cast<std::uint8_t>(text[length]) < 0x80) {
        ++length;
    }
    return length;
}

} // namespace

Utf8Sequence utf8SequenceAt(std::string_view text, std::size_t position) {
    const auto byte = [&](std::size_t offset) { return static_cast<std::uint8_t>(text[position + offset]); };
    const std::uint8_t lead = byte(0);
    if (lead < 0x80) {
        return {1, lead};
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() - position < length) {
        return {};
    }
    std::uint32_t codePoint = lead & (0x7FU >> length);
    for (std::size_t offset = 1; offset < length; ++offset) {
        if ((byte(offset) & 0xC0) != 0x80) {
            return {};
        }
        codePoint = codePoint << 6 | (byte(offset) & 0x3F);
    }
    const bool overlong = (length == 3 && codePoint < 0x800) || (length == 4 && codePoint < 0x10000);
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return overlong || surrogate || codePoint > 0x10FFFF ? Utf8Sequence{} : Utf8Sequence{length, codePoint};
}

bool isUtf8(std::string_view text) {
    for (std::size_t position = asciiLength(text); position < text.size();) {
        const auto sequence = utf8SequenceAt(text, position);
        if (sequence.length == 0) {
            return false;
        }
        position += sequence.length;
        position += asciiLength(text.substr(position));
    }
    return true;
}

std::string printable(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const auto [length, codePoint] = utf8SequenceAt(text, position);
        if (length == 0 || isControl(codePoint)) {
            line += '?';
        } else {
            line += text.substr(position, length);
        }
        position += length == 0 ? 1 : length;
    }
    return line;
}

} // namespace quelby
