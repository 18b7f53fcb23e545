#include "cli/output/harmless_json.h"

#include <algorithm>
#include <string_view>

#include <fmt/format.h>

#include "base/utf8.h"

namespace quelby::cli {

namespace {

// JSON itself escapes whatever stands below.
bool isPlain(char byte) {
    return static_cast<unsigned char>(byte) < 0x7F;
}

} // namespace

std::string harmless(std::string json) {
    if (std::all_of(json.begin(), json.end(), isPlain)) {
        return json;
    }
    std::string escaped;
    escaped.reserve(json.size());
    for (std::size_t position = 0; position < json.size();) {
        const auto [length, codePoint] = utf8SequenceAt(json, position);
        const auto character = std::string_view(json).substr(position, std::max<std::size_t>(length, 1));
        if (isPlain(character.front()) || printable(character) == character) {
            escaped += character;
        } else {
            escaped += fmt::format("\\u{:04x}", codePoint);
        }
        position += character.size();
    }
    return escaped;
}

} // namespace quelby::cli
