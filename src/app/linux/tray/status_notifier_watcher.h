#pragma once

#include <functional>
#include <optional>

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include "app/linux/tray/tray_host.h"

namespace quelby::app {

// Follows the program that collects the status items of the session. It may come late, leave, and be followed
// by another one; each gets the item registered anew.
class StatusNotifierWatcher {
public:
    // Who shows the item from now on; nobody where there is none.
    using HostListener = std::function<void(std::optional<TrayHost> host)>;

    // Tells the listener soon, and again at each change.
    StatusNotifierWatcher(QDBusConnection bus, HostListener listener);

private:
    void ownerChanged(const QString& owner);
    void askWhoItIs();
    void registerItem();

    QDBusConnection bus_;
    HostListener listener_;
    QString itemService_;
    QDBusServiceWatcher watcher_;
    QObject owner_; // with it goes who waits for an answer
};

} // namespace quelby::app
