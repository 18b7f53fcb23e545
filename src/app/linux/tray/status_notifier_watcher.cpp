#include "app/linux/tray/status_notifier_watcher.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>

namespace quelby::app {

namespace {

const auto watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");

std::string processName(uint process) {
    QFile file(QStringLiteral("/proc/%1/comm").arg(process));
    return file.open(QIODevice::ReadOnly) ? file.readLine().trimmed().toStdString() : std::string();
}

QDBusMessage busCall(const QString& method, const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                                  QStringLiteral("/org/freedesktop/DBus"),
                                                  QStringLiteral("org.freedesktop.DBus"), method);
    message.setArguments(arguments);
    return message;
}

} // namespace

StatusNotifierWatcher::StatusNotifierWatcher(QDBusConnection bus, HostListener listener)
    : bus_(std::move(bus))
    , listener_(std::move(listener))
    , itemService_(QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QCoreApplication::applicationPid()))
    , watcher_(watcherService, bus_, QDBusServiceWatcher::WatchForOwnerChange) {
    bus_.registerService(itemService_);
    QObject::connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, &owner_,
                     [this](const QString&, const QString&, const QString& owner) { ownerChanged(owner); });
    askWhoItIs();
}

void StatusNotifierWatcher::ownerChanged(const QString& owner) {
    if (owner.isEmpty()) {
        listener_(std::nullopt);
    } else {
        askWhoItIs();
    }
}

// The process behind the watcher tells which host it is. An error says that there is no watcher.
void StatusNotifierWatcher::askWhoItIs() {
    const auto call = bus_.asyncCall(busCall(QStringLiteral("GetConnectionUnixProcessID"), {watcherService}));
    auto* const answer = new QDBusPendingCallWatcher(call, &owner_);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &owner_, [this, answer] {
        const QDBusPendingReply<uint> process = *answer;
        answer->deleteLater();
        if (process.isError()) {
            listener_(std::nullopt);
            return;
        }
        listener_(trayHost(processName(process.value())));
        registerItem();
    });
}

void StatusNotifierWatcher::registerItem() {
    auto message =
        QDBusMessage::createMethodCall(watcherService, QStringLiteral("/StatusNotifierWatcher"),
                                       watcherService, QStringLiteral("RegisterStatusNotifierItem"));
    message.setArguments({itemService_});
    bus_.send(message);
}

} // namespace quelby::app
