#include "app/linux/session/desktop_settings.h"

#include <algorithm>
#include <cmath>

namespace quelby::app {

namespace {

// What X11's settings say of GTK's theme is newer than what the portal or the file does.
std::string toolkitTheme(const DesktopSettings& settings) {
    const auto x = settings.x.text("Net/ThemeName").value_or(std::string());
    return !x.empty() ? x : settings.portal.theme.value_or(settings.file.theme);
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
    return settings.file.animated.value_or(true);
}

bool wantsContrast(const DesktopSettings& settings) {
    return settings.portal.contrast.value_or(0) == 1 || toolkitTheme(settings).starts_with("HighContrast");
}

// Larger letters are kept as large as a small screen has room for.
double textScale(const DesktopSettings& settings) {
    constexpr double largest = 1.5;
    const double scale = settings.portal.textScale.value_or(1);
    return std::isfinite(scale) ? std::clamp(scale, 1.0, largest) : 1;
}

} // namespace

std::optional<bool> darkScheme(const DesktopSettings& settings) {
    const auto scheme = settings.portal.colorScheme.value_or(0);
    return scheme == 1 || scheme == 2 ? std::optional(scheme == 1) : std::nullopt;
}

Appearance appearance(const DesktopSettings& settings) {
    return {.dark = darkScheme(settings).value_or(hasDarkToolkit(settings)),
            .animated = isAnimated(settings),
            .contrast = wantsContrast(settings),
            .textScale = textScale(settings)};
}

std::chrono::milliseconds doublePress(const DesktopSettings& settings) {
    constexpr std::int32_t usual = 400;
    constexpr std::int32_t longest = 2000;
    const auto time = settings.x.number("Net/DoubleClickTime").value_or(usual);
    return std::chrono::milliseconds(std::clamp(time, 0, longest));
}

} // namespace quelby::app
