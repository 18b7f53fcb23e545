#include "app/linux/session/gnome_settings.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace quelby::app {

namespace {

template <typename Value>
std::optional<Value> valueOf(const DconfValues& values, std::string_view path) {
    const auto found = values.find(path);
    const auto* const value = found == values.end() ? nullptr : std::get_if<Value>(&found->second);
    return value == nullptr ? std::nullopt : std::optional(*value);
}

std::optional<std::uint32_t> numberOf(const std::optional<std::string>& word, auto& words) {
    const auto found =
        std::find_if(words.begin(), words.end(), [&](const auto& known) { return known.first == word; });
    return found == words.end() ? std::nullopt : std::optional(found->second);
}

using Words = std::pair<std::string_view, std::uint32_t>;

constexpr std::array schemes{Words{"default", 0}, Words{"prefer-dark", 1}, Words{"prefer-light", 2}};

constexpr std::array accents{Words{"blue", 0x3584E4},   Words{"teal", 0x2190A4},   Words{"green", 0x3A944A},
                             Words{"yellow", 0xC88800}, Words{"orange", 0xED5B00}, Words{"red", 0xE62D42},
                             Words{"pink", 0xD56199},   Words{"purple", 0x9141AC}, Words{"slate", 0x6F8396}};

} // namespace

PortalSettings gnomeSettings(const DconfValues& values) {
    const auto contrast = valueOf<bool>(values, "/org/gnome/desktop/a11y/interface/high-contrast");
    return {.colorScheme =
                numberOf(valueOf<std::string>(values, "/org/gnome/desktop/interface/color-scheme"), schemes),
            .theme = valueOf<std::string>(values, "/org/gnome/desktop/interface/gtk-theme"),
            .animated = valueOf<bool>(values, "/org/gnome/desktop/interface/enable-animations"),
            .animationFactor = std::nullopt,
            .contrast = contrast ? std::optional<std::uint32_t>(*contrast ? 1 : 0) : std::nullopt,
            .textScale = valueOf<double>(values, "/org/gnome/desktop/interface/text-scaling-factor"),
            .accent =
                numberOf(valueOf<std::string>(values, "/org/gnome/desktop/interface/accent-color"), accents)};
}

} // namespace quelby::app
