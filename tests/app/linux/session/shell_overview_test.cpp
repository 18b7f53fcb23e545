#include "app/linux/session/shell_overview.h"

#include <utility>

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <gtest/gtest.h>

#include "app/linux/support/eventually.h"
#include "app/linux/support/private_bus.h"

namespace quelby::app {
namespace {

class ShellOverviewTest : public testing::Test {
protected:
    ShellOverviewTest() {
        shell->registerService("org.gnome.Shell");
        overview.setBus(*program);
    }

    // How often it was told to have opened, once all that the shell said before its answer has arrived.
    [[nodiscard]] int openedAfter(const QString& interface, const QVariantMap& changed) {
        tell(interface, changed);
        const auto answer = program->asyncCall(QDBusMessage::createMethodCall(
            "org.gnome.Shell", "/org/gnome/Shell", "org.freedesktop.DBus.Peer", "Ping"));
        EXPECT_TRUE(eventually([&] { return answer.isFinished(); }));
        QCoreApplication::processEvents();
        return std::exchange(opened, 0);
    }

    void tell(const QString& interface, const QVariantMap& changed) {
        auto signal = QDBusMessage::createSignal("/org/gnome/Shell", "org.freedesktop.DBus.Properties",
                                                 "PropertiesChanged");
        signal.setArguments({interface, changed, QStringList()});
        EXPECT_TRUE(shell->send(signal));
    }

    PrivateBus bus;
    int opened = 0;
    BusConnection shell;
    BusConnection program;
    ShellOverview overview{[this] { ++opened; }};
};

TEST_F(ShellOverviewTest, IsTakenNoticeOfWheneverItOpens) {
    EXPECT_EQ(openedAfter("org.gnome.Shell", {{"OverviewActive", true}}), 1);
    EXPECT_EQ(openedAfter("org.gnome.Shell", {{"OverviewActive", true}}), 1);
}

TEST_F(ShellOverviewTest, IsNothingWhenItCloses) {
    EXPECT_EQ(openedAfter("org.gnome.Shell", {{"OverviewActive", false}}), 0);
}

TEST_F(ShellOverviewTest, IsNoneOfTheShellsOtherProperties) {
    EXPECT_EQ(openedAfter("org.gnome.Shell", {{"Mode", "user"}}), 0);
    EXPECT_EQ(openedAfter("org.gnome.Shell.Extensions", {{"OverviewActive", true}}), 0);
}

TEST_F(ShellOverviewTest, DoesNotMindThatThereIsNoBus) {
    overview.setBus(std::nullopt);
}

} // namespace
} // namespace quelby::app
