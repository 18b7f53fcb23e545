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
const auto watcherPath = QStringLiteral("/StatusNotifierWatcher");

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

StatusNotifierWatcher::StatusNotifierWatcher(QDBusConnection bus, Listener listener,
                                             std::chrono::milliseconds patience)
    : bus_(std::move(bus))
    , listener_(std::move(listener))
    , itemService_(QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QCoreApplication::applicationPid()))
    , watcher_(watcherService, bus_, QDBusServiceWatcher::WatchForOwnerChange) {
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    QObject::connect(&patience_, &QTimer::timeout, this, [this] { tell(std::nullopt); });
    bus_.registerService(itemService_);
    QObject::connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
                     [this](const QString&, const QString&, const QString& owner) { ownerChanged(owner); });
    bus_.connect(watcherService, watcherPath, watcherService, QStringLiteral("StatusNotifierHostRegistered"),
                 this, SLOT(hostRegistered()));
    bus_.connect(watcherService, watcherPath, watcherService,
                 QStringLiteral("StatusNotifierHostUnregistered"), this, SLOT(hostUnregistered()));
    bus_.connect(watcherService, watcherPath, watcherService,
                 QStringLiteral("StatusNotifierItemUnregistered"), this, SLOT(itemUnregistered(QString)));
    askWhoItIs();
}

void StatusNotifierWatcher::ownerChanged(const QString& owner) {
    if (host_ && !told_ && !hasDenied_) {
        tell(host_); // it went before it could answer
    }
    host_.reset();
    if (owner.isEmpty()) {
        tell(std::nullopt);
    } else {
        askWhoItIs();
    }
}

// The process behind the watcher tells which host it is. An error says that there is no watcher.
void StatusNotifierWatcher::askWhoItIs() {
    const auto call = bus_.asyncCall(busCall(QStringLiteral("GetConnectionUnixProcessID"), {watcherService}));
    auto* const answer = new QDBusPendingCallWatcher(call, this);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<uint> process = *answer;
        answer->deleteLater();
        if (process.isError()) {
            tell(std::nullopt);
            return;
        }
        host_ = trayHost(processName(process.value()));
        told_ = false; // of this one
        registrations_ = 0;
        hasDenied_ = false;
        listener_.met(*host_);
        registerItem();
        askForHost();
    });
}

void StatusNotifierWatcher::registerItem() {
    ++registrations_;
    auto message = QDBusMessage::createMethodCall(watcherService, watcherPath, watcherService,
                                                  QStringLiteral("RegisterStatusNotifierItem"));
    message.setArguments({itemService_});
    bus_.send(message);
}

// GNOME's extension now and then gives up on an item without a menu that has answered all that it was asked. A watcher that
// insists is left alone.
void StatusNotifierWatcher::itemUnregistered(const QString& item) {
    constexpr int mostTimes = 5;
    if (host_ && item.contains(itemService_) && registrations_ < mostTimes) {
        registerItem();
    }
}

// Those who have no answer show the items themselves.
void StatusNotifierWatcher::askForHost() {
    auto message = QDBusMessage::createMethodCall(watcherService, watcherPath,
                                                  QStringLiteral("org.freedesktop.DBus.Properties"),
                                                  QStringLiteral("Get"));
    message.setArguments({watcherService, QStringLiteral("IsStatusNotifierHostRegistered")});
    auto* const answer = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        if (!host_) { // it is gone meanwhile
            return;
        }
        if (reply.isValid() && !reply.value().variant().toBool()) {
            hasDenied_ = true;
            patience_.start();
        } else {
            hostRegistered();
        }
    });
}

void StatusNotifierWatcher::hostRegistered() {
    if (host_ && !told_) {
        tell(host_);
    }
    patience_.stop();
}

// There may be others.
void StatusNotifierWatcher::hostUnregistered() {
    if (host_) {
        askForHost();
    }
}

void StatusNotifierWatcher::tell(const std::optional<TrayHost>& host) {
    patience_.stop();
    told_ = host.has_value();
    listener_.shown(host);
}

} // namespace quelby::app
