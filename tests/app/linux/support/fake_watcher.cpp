#include "app/linux/support/fake_watcher.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
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

bool FakeWatcher::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.member() != "RegisterStatusNotifierItem" || message.signature() != "s") {
        return false;
    }
    items.push_back(message.arguments().first().toString());
    return connection.send(message.createReply());
}

} // namespace quelby
