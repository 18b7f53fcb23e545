// In which colours a drawn status item can be read on its panel. No protocol tells what a panel looks like, so
// this goes by what is known of the desktops: who answers for the panel's colours, and what they say.
#pragma once

#include <optional>
#include <string>

#include <QRgb>

namespace quelby::app {

// Who decides what the panel looks like.
enum class PanelStyle {
    dark,      // nobody: it is dark
    plasma,    // Plasma's own theme, or else the desktop's colour scheme
    lxqt,      // LXQt's own theme
    published, // the tray's manager, which says so on X11
    unknown,   // also XFCE's: dark under light themes by a switch of its own, of which its tray knows nothing
};

// What is known. Nothing where nobody says.
struct PanelClues {
    std::optional<bool> darkScheme; // whether the desktop wants its programs dark
    std::string panelTheme;         // by its name; empty where it has none
    std::optional<QRgb> publishedInk;

    bool operator==(const PanelClues&) const = default;
};

struct StatusInk {
    QRgb ink = 0;
    std::optional<QRgb> plate; // opaque, behind everything; nothing where the panel itself is known

    bool operator==(const StatusInk&) const = default;
};

// Light ink on a dark plate, which can be read on every panel.
inline constexpr QRgb lightInk = 0xFFFAFAFA;
inline constexpr QRgb darkInk = 0xFF232629;
inline constexpr StatusInk platedInk{lightInk, 0xFF2B2B2F};

[[nodiscard]] StatusInk statusInk(PanelStyle style, const PanelClues& clues);

} // namespace quelby::app
