#include "app/linux/session/session_bus.h"

namespace quelby::app {

namespace {

QString connectionName(int number) {
    return QStringLiteral("quelby-%1").arg(number);
}

} // namespace

SessionBus::SessionBus(std::chrono::milliseconds pauseBetweenAttempts) {
    retry_.setSingleShot(true);
    retry_.setInterval(pauseBetweenAttempts);
    QObject::connect(&retry_, &QTimer::timeout, this, [this] { connectAgain(); });
}

SessionBus::~SessionBus() {
    if (connection_) {
        QDBusConnection::disconnectFromBus(connectionName(connections_));
    }
}

std::optional<QDBusConnection> SessionBus::connection() {
    if (connection_) {
        return connection_;
    }
    hidden_.reset();
    if (sessionBusIsSilent()) {
        hidden_.emplace();
        wasHidden_ = true;
        return std::nullopt;
    }
    const auto name = connectionName(++connections_);
    auto bus = wasHidden_ ? QDBusConnection::connectToBus(HiddenSessionBus::address(), name)
                          : QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    if (!bus.isConnected()) {
        QDBusConnection::disconnectFromBus(name);
        return std::nullopt;
    }
    // What the client's own library says of itself, by no service.
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                SLOT(connectionLost()));
    connection_ = bus;
    return connection_;
}

void SessionBus::follow(Listener listener) {
    listeners_.push_back(std::move(listener));
    if (!connection_ && qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) {
        retry_.start();
    }
}

void SessionBus::connectionLost() {
    const auto name = connectionName(connections_);
    connection_.reset();
    if (!listeners_.empty()) {
        tell(std::nullopt);
        retry_.start();
    }
    QDBusConnection::disconnectFromBus(name);
}

void SessionBus::tell(const std::optional<QDBusConnection>& bus) const {
    for (const auto& listener : listeners_) {
        listener(bus);
    }
}

void SessionBus::connectAgain() {
    if (const auto bus = connection()) {
        tell(bus);
    } else {
        retry_.start();
    }
}

} // namespace quelby::app
