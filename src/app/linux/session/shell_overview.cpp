#include "app/linux/session/shell_overview.h"

namespace quelby::app {

void ShellOverview::setBus(std::optional<QDBusConnection> bus) {
    if (bus) {
        bus->connect(QStringLiteral("org.gnome.Shell"), QStringLiteral("/org/gnome/Shell"),
                     QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"),
                     this, SLOT(propertiesChanged(QString, QVariantMap)));
    }
}

void ShellOverview::propertiesChanged(const QString& interface, const QVariantMap& changed) {
    if (interface == QLatin1String("org.gnome.Shell") &&
        changed.value(QStringLiteral("OverviewActive")).toBool()) {
        opened_();
    }
}

} // namespace quelby::app
