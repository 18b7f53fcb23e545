#pragma once

#include <functional>
#include <optional>

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

namespace quelby::app {

// GNOME's overview, in which all windows step back. It takes the focus from none of X11, so only the shell tells of
// it: by its property OverviewActive on the bus.
class ShellOverview final : public QObject {
    Q_OBJECT

public:
    explicit ShellOverview(std::function<void()> opened) : opened_(std::move(opened)) {}

    void setBus(std::optional<QDBusConnection> bus);

private Q_SLOTS:
    void propertiesChanged(const QString& interface, const QVariantMap& changed);

private:
    std::function<void()> opened_;
};

} // namespace quelby::app
