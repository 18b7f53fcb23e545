#include "app/linux/session/view_change.h"

namespace quelby::app {

void ViewChange::setBus(std::optional<QDBusConnection> bus) {
    if (!bus) {
        return;
    }
    bus->connect(QStringLiteral("org.gnome.Shell"), QStringLiteral("/org/gnome/Shell"),
                 QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"), this,
                 SLOT(propertiesChanged(QString, QVariantMap)));
    bus->connect(QStringLiteral("org.kde.KWin"), QStringLiteral("/VirtualDesktopManager"),
                 QStringLiteral("org.kde.KWin.VirtualDesktopManager"), QStringLiteral("currentChanged"), this,
                 SLOT(desktopChanged()));
}

void ViewChange::propertiesChanged(const QString& interface, const QVariantMap& changed) {
    if (interface == QLatin1String("org.gnome.Shell") &&
        changed.value(QStringLiteral("OverviewActive")).toBool()) {
        changed_();
    }
}

void ViewChange::desktopChanged() {
    changed_();
}

} // namespace quelby::app
