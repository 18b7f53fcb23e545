#include "app/linux/tray/panel_theme.h"

#include <QSettings>
#include <QStringList>

namespace quelby::app {

namespace {

// The first of the files that says anything.
std::string firstValue(const QStringList& files, const QString& key) {
    for (const auto& file : files) {
        const auto value = QSettings(file, QSettings::IniFormat).value(key).toString();
        if (!value.isEmpty()) {
            return value.toStdString();
        }
    }
    return {};
}

// The user's file, and then those for everybody, where the panel looks for them as well.
QStringList inSharedFolders(const QString& configurationFolder, const QString& name) {
    QStringList files{configurationFolder + name};
    const auto shared = qEnvironmentVariable("XDG_CONFIG_DIRS");
    for (const auto& folder : (shared.isEmpty() ? QStringLiteral("/etc/xdg") : shared).split(':')) {
        files.append(folder + name);
    }
    return files;
}

} // namespace

std::string panelTheme(PanelStyle style, const QString& configurationFolder) {
    switch (style) {
    case PanelStyle::plasma: // the second is what the whole look that was chosen comes with
        return firstValue({configurationFolder + QStringLiteral("/plasmarc"),
                           configurationFolder + QStringLiteral("/kdedefaults/plasmarc")},
                          QStringLiteral("Theme/name"));
    case PanelStyle::lxqt:
        return firstValue(inSharedFolders(configurationFolder, QStringLiteral("/lxqt/lxqt.conf")),
                          QStringLiteral("theme"));
    case PanelStyle::dark:
    case PanelStyle::published:
    case PanelStyle::unknown:
        break;
    }
    return {};
}

} // namespace quelby::app
