#include "app/linux/tray/panel_ink.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quelby::app {

namespace {

// The panels of LXQt's themes that are opaque. What shines through the others is anybody's guess.
constexpr std::array<std::string_view, 3> lightThemesOfLxqt{"Clearlooks", "KDE-Plasma", "light"};
constexpr std::array<std::string_view, 3> darkThemesOfLxqt{"Arch-Colors", "Leech", "ambiance"};

template <std::size_t N>
bool contains(const std::array<std::string_view, N>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

// Plasma's default theme has the colours of the programs; its siblings have one of their own.
std::optional<bool> isDarkInPlasma(const PanelClues& clues) {
    if (clues.panelTheme == "breeze-dark") {
        return true;
    }
    if (clues.panelTheme == "breeze-light") {
        return false;
    }
    return clues.panelTheme.empty() || clues.panelTheme == "default" ? clues.darkScheme : std::nullopt;
}

std::optional<bool> isDarkInLxqt(const PanelClues& clues) {
    if (contains(darkThemesOfLxqt, clues.panelTheme)) {
        return true;
    }
    return contains(lightThemesOfLxqt, clues.panelTheme) ? std::optional(false) : std::nullopt;
}

std::optional<bool> isDark(PanelStyle style, const PanelClues& clues) {
    switch (style) {
    case PanelStyle::dark:
        return true;
    case PanelStyle::plasma:
        return isDarkInPlasma(clues);
    case PanelStyle::lxqt:
        return isDarkInLxqt(clues);
    case PanelStyle::published:
    case PanelStyle::unknown:
        break;
    }
    return std::nullopt;
}

} // namespace

StatusInk statusInk(PanelStyle style, const PanelClues& clues) {
    if (style == PanelStyle::published && clues.publishedInk) {
        return {*clues.publishedInk, std::nullopt};
    }
    const auto dark = isDark(style, clues);
    return dark ? StatusInk{*dark ? lightInk : darkInk, std::nullopt} : platedInk;
}

} // namespace quelby::app
