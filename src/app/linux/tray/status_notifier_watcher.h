#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QTimer>

#include "app/linux/tray/tray_host.h"

namespace quelby::app {

// Follows the program that collects the status items of the session. It may come late, leave, and be followed
// by another one; each gets the item registered anew. Some collect items also while no panel shows them.
class StatusNotifierWatcher : public QObject {
    Q_OBJECT

public:
    struct Listener {
        // Who is to show the item: told before he can ask for it.
        std::function<void(const TrayHost& host)> met;

        // Who shows it from now on; nobody where there is none.
        std::function<void(std::optional<TrayHost> host)> shown;
    };

    // For so long a panel may be away before nobody is said to show the item: panels begin after their watchers.
    static constexpr std::chrono::milliseconds usualPatience{3000};

    // Tells the listener soon, and again at each change.
    StatusNotifierWatcher(QDBusConnection bus, Listener listener,
                          std::chrono::milliseconds patience = usualPatience);

private Q_SLOTS:
    void hostRegistered();
    void hostUnregistered();
    void itemUnregistered(const QString& item);

private:
    void ownerChanged(const QString& owner);
    void askWhoItIs();
    void registerItem();
    void askForHost();
    void tell(const std::optional<TrayHost>& host);

    QDBusConnection bus_;
    Listener listener_;
    QString itemService_;
    QDBusServiceWatcher watcher_;
    std::optional<TrayHost> host_; // as it is when a panel is there; none without a watcher
    bool told_ = false;            // that it shows the item
    bool hasDenied_ = false;       // that any panel shows items
    int registrations_ = 0;        // with this one
    QTimer patience_;
};

} // namespace quelby::app
