#include "app/linux/support/fake_watcher.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <gtest/gtest.h>
#include <sys/prctl.h>

namespace quelby {

FakeWatcher::FakeWatcher(const std::string& processName) {
    ::prctl(PR_SET_NAME, processName.c_str()); // the watcher's process is the test's
    bus_->registerVirtualObject("/StatusNotifierWatcher", this);
    const auto registered = bus_->interface()->registerService(
        "org.kde.StatusNotifierWatcher", QDBusConnectionInterface::ReplaceExistingService,
        QDBusConnectionInterface::AllowReplacement);
    EXPECT_EQ(registered.value(), QDBusConnectionInterface::ServiceRegistered);
}

FakeWatcher::~FakeWatcher() {
    bus_->unregisterObject("/StatusNotifierWatcher");
}

void FakeWatcher::setHost(bool present) {
    hasHost = present;
    const auto name = present ? "StatusNotifierHostRegistered" : "StatusNotifierHostUnregistered";
    EXPECT_TRUE(bus_->send(
        QDBusMessage::createSignal("/StatusNotifierWatcher", "org.kde.StatusNotifierWatcher", name)));
}

void FakeWatcher::giveUp(const QString& item) {
    auto signal = QDBusMessage::createSignal("/StatusNotifierWatcher", "org.kde.StatusNotifierWatcher",
                                             "StatusNotifierItemUnregistered");
    signal.setArguments({item});
    EXPECT_TRUE(bus_->send(signal));
}

bool FakeWatcher::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.member() == "Get" && isMute) {
        return true;
    }
    if (message.member() == "Get" && hasHost) {
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(*hasHost))));
    }
    if (message.member() != "RegisterStatusNotifierItem" || message.signature() != "s") {
        return false;
    }
    items.push_back(message.arguments().first().toString());
    return connection.send(message.createReply());
}

} // namespace quelby
