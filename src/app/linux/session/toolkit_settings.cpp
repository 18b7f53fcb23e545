#include "app/linux/session/toolkit_settings.h"

#include <charconv>

#include <QRgb>
#include <QSettings>
#include <QStringList>

namespace quelby::app {

namespace {

// Zero stands for none. It is in the group that Qt takes for none.
std::optional<double> fontResolution(const QString& configurationFolder) {
    const QSettings file(configurationFolder + QStringLiteral("/kcmfontsrc"), QSettings::IniFormat);
    const double dots = file.value(QStringLiteral("forceFontDPIWayland")).toDouble();
    return dots > 0 ? std::optional(dots) : std::nullopt;
}

// A list, which Qt takes its commas for.
std::optional<std::uint32_t> colorIn(const QSettings& file, const char* key) {
    return colorOfKde(file.value(QLatin1String(key)).toStringList().join(',').toStdString());
}

std::optional<bool> isDark(std::optional<std::uint32_t> background) {
    return background ? std::optional(qGray(*background) < 128) : std::nullopt;
}

void addThoseOfKde(const QString& configurationFolder, ToolkitSettings& settings) {
    const QSettings colors(configurationFolder + QStringLiteral("/kdeglobals"), QSettings::IniFormat);
    settings.darkColors = isDark(colorIn(colors, "Colors:Window/BackgroundNormal"));
    settings.accent = colorIn(colors, "AccentColor");
    settings.fontResolution = fontResolution(configurationFolder);
}

} // namespace

ToolkitSettings toolkitSettings(const QString& configurationFolder, const QString& desktop) {
    const QSettings file(configurationFolder + QStringLiteral("/gtk-3.0/settings.ini"), QSettings::IniFormat);
    const auto flag = [&](const char* key) {
        const auto value = file.value(QStringLiteral("Settings/") + QLatin1String(key));
        return value.isValid() ? std::optional(value.toBool()) : std::nullopt;
    };
    ToolkitSettings settings{
        .theme = file.value(QStringLiteral("Settings/gtk-theme-name")).toString().toStdString(),
        .prefersDark = flag("gtk-application-prefer-dark-theme"),
        .animated = flag("gtk-enable-animations")};
    if (desktop.split(':').contains(QLatin1String("KDE"))) {
        addThoseOfKde(configurationFolder, settings);
    }
    return settings;
}

std::optional<std::uint32_t> colorOfKde(std::string_view threeNumbers) {
    std::uint32_t color = 0;
    const char* next = threeNumbers.data();
    const char* const end = next + threeNumbers.size();
    for (int i = 0; i < 3; ++i) {
        std::uint8_t part = 0;
        const auto [rest, error] = std::from_chars(next, end, part);
        const bool follows = i == 2 ? rest == end : rest != end && *rest == ',';
        if (error != std::errc() || !follows) {
            return std::nullopt;
        }
        next = rest + 1;
        color = color << 8U | part;
    }
    return color;
}

bool isDarkTheme(std::string_view name) {
    const auto text = QString::fromUtf8(name).toLower();
    if (text == QLatin1String("highcontrastinverse") || text == QLatin1String("blackmate")) {
        return true;
    }
    const auto words = QString(text).replace('_', '-').replace(':', '-').replace(' ', '-').split('-');
    return words.contains(QLatin1String("dark")) || words.contains(QLatin1String("black"));
}

} // namespace quelby::app
