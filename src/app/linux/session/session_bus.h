#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include "app/linux/session/bus_silence.h"

namespace quelby::app {

// The connection to the session's bus, made again some seconds after it broke, for as long as it takes.
class SessionBus : public QObject {
    Q_OBJECT

public:
    using Listener = std::function<void(const std::optional<QDBusConnection>& bus)>;

    explicit SessionBus(std::chrono::milliseconds pauseBetweenAttempts = std::chrono::seconds(5));
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    ~SessionBus() override;

    // Connects. Nothing where there is no bus at present, or one that answers nobody.
    [[nodiscard]] std::optional<QDBusConnection> connection();

    // Told at each change from now on, after those who asked before.
    void follow(Listener listener);

private Q_SLOTS:
    void connectionLost();

private:
    void connectAgain();
    void tell(const std::optional<QDBusConnection>& bus) const;

    std::optional<QDBusConnection> connection_;
    std::optional<HiddenSessionBus> hidden_; // while it is silent
    bool wasHidden_ = false;                 // the bus's library keeps the address that it has seen first
    int connections_ = 0;                    // how many there were so far; Qt needs another name for each
    std::vector<Listener> listeners_;
    QTimer retry_;
};

} // namespace quelby::app
