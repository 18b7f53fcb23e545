#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <QString>

namespace quelby::app {

// What programs of other kinds are told about their look. Nothing, or an empty name, where nobody says.
struct ToolkitSettings {
    std::string theme;
    std::optional<bool> prefersDark; // whatever the theme is called
    std::optional<bool> animated;
    std::optional<bool> darkColors;       // of KDE's own
    std::optional<std::uint32_t> accent;  // KDE's, as 0xRRGGBB
    std::optional<double> fontResolution; // in dots an inch, that KDE wants on Wayland; 96 is usual

    bool operator==(const ToolkitSettings&) const = default;
};

// From the files of GTK and KDE in the folder with the user's settings. KDE's are read on KDE only; the desktop is
// called as XDG_CURRENT_DESKTOP has it.
[[nodiscard]] ToolkitSettings toolkitSettings(const QString& configurationFolder, const QString& desktop);

// As KDE writes colours: "61,174,233".
[[nodiscard]] std::optional<std::uint32_t> colorOfKde(std::string_view threeNumbers);

// By a word of its name: "Adwaita-dark" is, "Darkroom" is not.
[[nodiscard]] bool isDarkTheme(std::string_view name);

} // namespace quelby::app
