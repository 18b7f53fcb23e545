#include "cli/terminal/device/keys.h"

#include <array>
#include <optional>
#include <utility>

namespace quelby::cli {

namespace {

constexpr char escape = '\x1b';

// The parameters and final bytes of xterm's sequences, behind ESC [ or ESC O.
std::optional<Key> keyOf(std::string_view sequence) {
    constexpr std::array known{
        std::pair(std::string_view("A"), Key::up),      std::pair(std::string_view("B"), Key::down),
        std::pair(std::string_view("H"), Key::home),    std::pair(std::string_view("F"), Key::end),
        std::pair(std::string_view("1~"), Key::home),   std::pair(std::string_view("4~"), Key::end),
        std::pair(std::string_view("5~"), Key::pageUp), std::pair(std::string_view("6~"), Key::pageDown),
        std::pair(std::string_view("7~"), Key::home),   std::pair(std::string_view("8~"), Key::end)};
    for (const auto& [text, key] : known) {
        if (text == sequence) {
            return key;
        }
    }
    return std::nullopt;
}

// The length of a control sequence behind its introducer (ECMA-48, 5.4): it ends with a byte from 0x40 to
// 0x7E.
std::size_t sequenceLength(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] >= 0x40 && bytes[i] <= 0x7E) {
            return i + 1;
        }
    }
    return bytes.size();
}

} // namespace

std::vector<KeyPress> keyPresses(std::string_view bytes) {
    std::vector<KeyPress> presses;
    while (!bytes.empty()) {
        if (bytes.front() != escape) {
            presses.push_back({Key::character, bytes.front()});
            bytes.remove_prefix(1);
            continue;
        }
        bytes.remove_prefix(1);
        if (bytes.empty() || (bytes.front() != '[' && bytes.front() != 'O')) {
            presses.push_back({Key::escape});
            continue;
        }
        bytes.remove_prefix(1);
        const auto length = sequenceLength(bytes);
        if (const auto key = keyOf(bytes.substr(0, length))) {
            presses.push_back({*key});
        }
        bytes.remove_prefix(length);
    }
    return presses;
}

} // namespace quelby::cli
