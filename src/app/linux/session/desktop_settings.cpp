#include "app/linux/session/desktop_settings.h"

#include <algorithm>

namespace quelby::app {

namespace {

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

} // namespace

std::optional<bool> darkScheme(const DesktopSettings& settings) {
    const auto scheme = settings.portal.colorScheme.value_or(0);
    return scheme == 1 || scheme == 2 ? std::optional(scheme == 1) : std::nullopt;
}

bool hasDarkToolkit(const DesktopSettings& settings) {
    const auto x = settings.x.text("Net/ThemeName").value_or(std::string());
    const auto theme = !x.empty() ? x : settings.portal.theme.value_or(settings.file.theme);
    return settings.file.prefersDark.value_or(false) || isDarkTheme(theme);
}

Appearance appearance(const DesktopSettings& settings) {
    return {.dark = darkScheme(settings).value_or(hasDarkToolkit(settings)),
            .animated = isAnimated(settings)};
}

std::chrono::milliseconds doublePress(const DesktopSettings& settings) {
    constexpr std::int32_t usual = 400;
    constexpr std::int32_t longest = 2000;
    const auto time = settings.x.number("Net/DoubleClickTime").value_or(usual);
    return std::chrono::milliseconds(std::clamp(time, 0, longest));
}

} // namespace quelby::app
