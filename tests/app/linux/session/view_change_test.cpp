#include "app/linux/session/view_change.h"

#include <utility>

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <gtest/gtest.h>

#include "app/linux/support/eventually.h"
#include "app/linux/support/private_bus.h"

namespace quelby::app {
namespace {

class ViewChangeTest : public testing::Test {
protected:
    ViewChangeTest() {
        shell->registerService("org.gnome.Shell");
        shell->registerService("org.kde.KWin");
        view.setBus(*program);
    }

    // How often it was told to have changed, once all that the shell said before its answer has arrived.
    [[nodiscard]] int changesAfter(QDBusMessage signal, const QVariantList& arguments) {
        signal.setArguments(arguments);
        EXPECT_TRUE(shell->send(signal));
        const auto answer = program->asyncCall(QDBusMessage::createMethodCall(
            "org.gnome.Shell", "/org/gnome/Shell", "org.freedesktop.DBus.Peer", "Ping"));
        EXPECT_TRUE(eventually([&] { return answer.isFinished(); }));
        QCoreApplication::processEvents();
        return std::exchange(changes, 0);
    }

    [[nodiscard]] int changesAfterProperties(const QString& interface, const QVariantMap& changed) {
        return changesAfter(QDBusMessage::createSignal("/org/gnome/Shell", "org.freedesktop.DBus.Properties",
                                                       "PropertiesChanged"),
                            {interface, changed, QStringList()});
    }

    PrivateBus bus;
    int changes = 0;
    BusConnection shell;
    BusConnection program;
    ViewChange view{[this] { ++changes; }};
};

TEST_F(ViewChangeTest, IsTheOverviewOfGnomeWheneverItOpens) {
    EXPECT_EQ(changesAfterProperties("org.gnome.Shell", {{"OverviewActive", true}}), 1);
    EXPECT_EQ(changesAfterProperties("org.gnome.Shell", {{"OverviewActive", true}}), 1);
}

TEST_F(ViewChangeTest, IsNotTheOverviewWhenItCloses) {
    EXPECT_EQ(changesAfterProperties("org.gnome.Shell", {{"OverviewActive", false}}), 0);
}

TEST_F(ViewChangeTest, IsNoneOfTheShellsOtherProperties) {
    EXPECT_EQ(changesAfterProperties("org.gnome.Shell", {{"Mode", "user"}}), 0);
    EXPECT_EQ(changesAfterProperties("org.gnome.Shell.Extensions", {{"OverviewActive", true}}), 0);
}

TEST_F(ViewChangeTest, IsAnotherDesktopOfPlasmaAndNotThatThereIsOneMore) {
    const auto signal = [](const char* name) {
        return QDBusMessage::createSignal("/VirtualDesktopManager", "org.kde.KWin.VirtualDesktopManager",
                                          name);
    };
    EXPECT_EQ(changesAfter(signal("currentChanged"), {"00ed6bb5-7ffa-40fa-b9dd-ccf0c32bbac1"}), 1);
    EXPECT_EQ(changesAfter(signal("countChanged"), {3U}), 0);
}

TEST_F(ViewChangeTest, DoesNotMindThatThereIsNoBus) {
    view.setBus(std::nullopt);
}

} // namespace
} // namespace quelby::app
