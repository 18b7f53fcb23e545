#include "app/linux/support/private_bus.h"

#include <csignal>

#include <QUuid>
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace quelby {

namespace {

// The bus's library looks up the session's address once in a process's life.
const TemporaryFolder& busFolder() {
    static const TemporaryFolder folder;
    return folder;
}

// Everybody may say anything, and no service is started by itself.
std::string configuration(PrivateBus::Names names) {
    return fmt::format(R"(<busconfig>
  <type>session</type>
  <listen>unix:path={}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*"/>
    <allow eavesdrop="true"/>
    <{} own="*"/>
  </policy>
</busconfig>
)",
                       (busFolder().path() / "bus").string(),
                       names == PrivateBus::Names::everybodys ? "allow" : "deny");
}

} // namespace

PrivateBus::PrivateBus() {
    ::setenv("DBUS_SESSION_BUS_ADDRESS", address().toUtf8().constData(), 1);
    start();
}

PrivateBus::~PrivateBus() {
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent", 1);
}

QString PrivateBus::address() {
    return QString::fromStdString("unix:path=" + (busFolder().path() / "bus").string());
}

void PrivateBus::start(Names names) {
    const auto file = busFolder().write("bus.conf", configuration(names));
    daemon_.emplace(std::vector<std::string>{"/usr/bin/dbus-daemon", "--nofork", "--print-address=1",
                                             "--config-file=" + file.string()});
    EXPECT_FALSE(daemon_->line().empty()); // it listens
}

void PrivateBus::stop() {
    daemon_->signal(SIGTERM);
    static_cast<void>(daemon_->end());
    daemon_.reset();
}

BusConnection::BusConnection()
    : name_(QUuid::createUuid().toString())
    , bus_(QDBusConnection::connectToBus(PrivateBus::address(), name_)) {
    EXPECT_TRUE(bus_.isConnected());
}

BusConnection::~BusConnection() {
    QDBusConnection::disconnectFromBus(name_);
}

} // namespace quelby
