#pragma once

#include <functional>
#include <optional>

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

namespace quelby::app {

// The desktop shows something else where the windows were: GNOME its overview, which takes the focus from no window
// of X11, and Plasma another virtual desktop, from which windows that belong to the desktop do not go away. Their
// shells tell of it on the bus: by the property OverviewActive, and by a signal of the manager of the desktops.
class ViewChange final : public QObject {
    Q_OBJECT

public:
    explicit ViewChange(std::function<void()> changed) : changed_(std::move(changed)) {}

    void setBus(std::optional<QDBusConnection> bus);

private Q_SLOTS:
    void propertiesChanged(const QString& interface, const QVariantMap& changed);
    void desktopChanged();

private:
    std::function<void()> changed_;
};

} // namespace quelby::app
