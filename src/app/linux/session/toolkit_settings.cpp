#include "app/linux/session/toolkit_settings.h"

#include <QSettings>
#include <QStringList>

namespace quelby::app {

ToolkitSettings toolkitSettings(const QString& configurationFolder) {
    const QSettings file(configurationFolder + QStringLiteral("/gtk-3.0/settings.ini"), QSettings::IniFormat);
    const auto flag = [&](const char* key) {
        const auto value = file.value(QStringLiteral("Settings/") + QLatin1String(key));
        return value.isValid() ? std::optional(value.toBool()) : std::nullopt;
    };
    return {.theme = file.value(QStringLiteral("Settings/gtk-theme-name")).toString().toStdString(),
            .prefersDark = flag("gtk-application-prefer-dark-theme"),
            .animated = flag("gtk-enable-animations")};
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
