#pragma once

#include <optional>

#include <QDBusConnection>

#include "support/running_program.h"

namespace quelby {

// A session bus of the test's own, with nothing on it. It is the session's for this process and for those
// that it starts.
class PrivateBus {
public:
    PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus();

    enum class Names { everybodys, nobodys }; // whose names may be taken

    // At the same address as before.
    void start(Names names = Names::everybodys);
    void stop();

    [[nodiscard]] static QString address();

private:
    std::optional<RunningProgram> daemon_;
};

// A connection with an end: Qt keeps connections by name.
class BusConnection {
public:
    BusConnection();
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;
    ~BusConnection();

    [[nodiscard]] QDBusConnection& operator*() { return bus_; }

    [[nodiscard]] QDBusConnection* operator->() { return &bus_; }

private:
    QString name_;
    QDBusConnection bus_;
};

} // namespace quelby
