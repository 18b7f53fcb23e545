// What a desktop says of light and dark, of animations and of its colours, from all who may say it, and what comes of that.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "app/linux/session/toolkit_settings.h"
#include "app/linux/session/x_settings.h"
#include "ui/view/appearance.h"

namespace quelby::app {

// The desktop's portal (org.freedesktop.portal.Settings). Nothing where it says nothing.
struct PortalSettings {
    std::optional<std::uint32_t> colorScheme; // 1 asks for dark, 2 for light, everything else does not care
    std::optional<std::string> theme;         // GTK's
    std::optional<bool> animated;             // in GNOME's words
    std::optional<double> animationFactor;    // in KDE's: 0 for none
    std::optional<std::uint32_t> contrast;    // 1 asks for more
    std::optional<double> textScale;          // GNOME's, of its own usual size
    std::optional<std::uint32_t> accent;      // 0xRRGGBB

    bool operator==(const PortalSettings&) const = default;
};

struct DesktopSettings {
    PortalSettings portal;
    XSettings x;
    PortalSettings stored = {}; // GNOME's, of which also other desktops make use where there is no portal
    bool isGnome = false;       // the desktop at work
    ToolkitSettings file;

    bool operator==(const DesktopSettings&) const = default;
};

// Whether it asks for dark or for light; nothing where it does not care.
[[nodiscard]] std::optional<bool> darkScheme(const DesktopSettings& settings);

[[nodiscard]] Appearance appearance(const DesktopSettings& settings);

// As the portal tells it: red, green and blue from 0 to 1. Nothing where they are not, by which it says that there is
// none.
[[nodiscard]] std::optional<std::uint32_t> accentFrom(double red, double green, double blue);

// Within it two presses are a double one: 400 ms where nobody says otherwise.
[[nodiscard]] std::chrono::milliseconds doublePress(const DesktopSettings& settings);

} // namespace quelby::app
