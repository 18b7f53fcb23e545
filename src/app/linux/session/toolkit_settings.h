#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <QString>

namespace quelby::app {

// What GTK programs are told about their look. Nothing, or an empty name, where nobody says.
struct ToolkitSettings {
    std::string theme;
    std::optional<bool> prefersDark; // whatever the theme is called
    std::optional<bool> animated;

    bool operator==(const ToolkitSettings&) const = default;
};

// From the file of that name in the folder with the user's settings, gtk-3.0/settings.ini.
[[nodiscard]] ToolkitSettings toolkitSettings(const QString& configurationFolder);

// By a word of its name: "Adwaita-dark" is, "Darkroom" is not.
[[nodiscard]] bool isDarkTheme(std::string_view name);

} // namespace quelby::app
