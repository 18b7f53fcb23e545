#include "cli/terminal/layout/display_width.h"

#include <unicode/uchar.h>

#include "base/utf8.h"

namespace quelby::cli {

namespace {

int columnsOf(UChar32 character) {
    switch (u_charType(character)) {
    case U_NON_SPACING_MARK:
    case U_ENCLOSING_MARK:
    case U_FORMAT_CHAR:
    case U_CONTROL_CHAR:
        return 0;
    default:
        break;
    }
    const auto width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

// The width of the character at the position, which moves behind it; a byte that is not UTF-8 counts as one
// column.
int columnsAt(std::string_view text, std::size_t& position) {
    const auto [length, codePoint] = utf8SequenceAt(text, position);
    position += length == 0 ? 1 : length;
    return length == 0 ? 1 : columnsOf(static_cast<UChar32>(codePoint));
}

} // namespace

int displayWidth(std::string_view text) {
    int columns = 0;
    for (std::size_t position = 0; position < text.size();) {
        columns += columnsAt(text, position);
    }
    return columns;
}

std::string fitted(std::string_view text, int columns) {
    const int width = displayWidth(text);
    if (width <= columns) {
        return std::string(text) + std::string(static_cast<std::size_t>(columns - width), ' ');
    }
    if (columns < 1) {
        return {};
    }
    int taken = 0;
    std::size_t position = 0;
    while (true) {
        std::size_t next = position;
        const int more = columnsAt(text, next);
        if (taken + more > columns - 1) {
            break;
        }
        taken += more;
        position = next;
    }
    return std::string(text.substr(0, position)) + "…" +
           std::string(static_cast<std::size_t>(columns - 1 - taken), ' ');
}

} // namespace quelby::cli
