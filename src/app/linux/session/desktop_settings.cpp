#include "app/linux/session/desktop_settings.h"

#include <algorithm>
#include <cmath>

namespace quelby::app {

namespace {

// The portal's word, and where it has none what is stored.
template <typename Value>
std::optional<Value> said(const DesktopSettings& settings, std::optional<Value> PortalSettings::*what) {
    const auto& portal = settings.portal.*what;
    return portal ? portal : settings.stored.*what;
}

// A desktop that shares its settings by X11 has a theme of its own, and what is stored is another desktop's; but GNOME
// shares those that it stores.
std::uint32_t colorScheme(const DesktopSettings& settings) {
    const bool mayBeStored = settings.isGnome || !settings.x.text("Net/ThemeName");
    const auto stored = mayBeStored ? settings.stored.colorScheme : std::nullopt;
    return settings.portal.colorScheme.value_or(stored.value_or(0));
}

// What X11's settings say of GTK's theme is newer than what the portal or the file does.
std::string toolkitTheme(const DesktopSettings& settings) {
    const auto x = settings.x.text("Net/ThemeName").value_or(std::string());
    return !x.empty() ? x : said(settings, &PortalSettings::theme).value_or(settings.file.theme);
}

bool hasDarkToolkit(const DesktopSettings& settings) {
    return settings.file.prefersDark.value_or(false) || isDarkTheme(toolkitTheme(settings));
}

// The desktops' own words count together, for only one of them is at work. Without any it is the toolkit's.
bool isAnimated(const DesktopSettings& settings) {
    const auto& portal = settings.portal;
    if (portal.animated || portal.animationFactor) {
        return portal.animated.value_or(true) && portal.animationFactor.value_or(1) > 0;
    }
    if (const auto enabled = settings.x.number("Gtk/EnableAnimations")) {
        return *enabled != 0;
    }
    return settings.stored.animated.value_or(settings.file.animated.value_or(true));
}

bool wantsContrast(const DesktopSettings& settings) {
    return said(settings, &PortalSettings::contrast).value_or(0) == 1 ||
           toolkitTheme(settings).starts_with("HighContrast");
}

// Larger letters are kept as large as a small screen has room for.
double textScale(const DesktopSettings& settings) {
    constexpr double largest = 1.5;
    constexpr double usualResolution = 96;
    const double forced = settings.file.fontResolution.value_or(usualResolution) / usualResolution;
    const double scale = said(settings, &PortalSettings::textScale).value_or(forced);
    return std::isfinite(scale) ? std::clamp(scale, 1.0, largest) : 1;
}

std::optional<std::uint32_t> accent(const DesktopSettings& settings) {
    const auto color = said(settings, &PortalSettings::accent);
    return color ? color : settings.file.accent;
}

} // namespace

std::optional<bool> darkScheme(const DesktopSettings& settings) {
    const auto scheme = colorScheme(settings);
    return scheme == 1 || scheme == 2 ? std::optional(scheme == 1) : settings.file.darkColors;
}

Appearance appearance(const DesktopSettings& settings) {
    return {.dark = darkScheme(settings).value_or(hasDarkToolkit(settings)),
            .animated = isAnimated(settings),
            .contrast = wantsContrast(settings),
            .textScale = textScale(settings),
            .accent = accent(settings)};
}

std::optional<std::uint32_t> accentFrom(double red, double green, double blue) {
    std::uint32_t color = 0;
    for (const double part : {red, green, blue}) {
        if (!(part >= 0 && part <= 1)) {
            return std::nullopt;
        }
        color = color << 8U | static_cast<std::uint32_t>(std::lround(part * 255));
    }
    return color;
}

std::chrono::milliseconds doublePress(const DesktopSettings& settings) {
    constexpr std::int32_t usual = 400;
    constexpr std::int32_t longest = 2000;
    const auto time = settings.x.number("Net/DoubleClickTime").value_or(usual);
    return std::chrono::milliseconds(std::clamp(time, 0, longest));
}

} // namespace quelby::app
