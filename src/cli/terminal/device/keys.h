#pragma once

#include <string_view>
#include <vector>

namespace quelby::cli {

enum class Key { character, escape, up, down, pageUp, pageDown, home, end };

struct KeyPress {
    Key key = Key::character;
    char character = 0; // of Key::character

    bool operator==(const KeyPress&) const = default;
};

// The keys behind what a terminal sends in one piece. Sequences that are not known are skipped as a whole.
[[nodiscard]] std::vector<KeyPress> keyPresses(std::string_view bytes);

} // namespace quelby::cli
