#include "app/linux/session/shell_overview.h"

#include <QDBusMessage>
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

    // The shell's own word comes last: what it said before has been heard then.
    [[nodiscard]] int openedAfter(const QString& interface, const QVariantMap& changed) {
        tell(interface, changed);
        tell("org.gnome.Shell", {{"OverviewActive", true}});
        EXPECT_TRUE(eventually([&] { return opened > 0; }));
        return opened - 1;
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

TEST_F(ShellOverviewTest, IsTakenNoticeOfWhenItOpens) {
    EXPECT_EQ(openedAfter("org.gnome.Shell", {{"OverviewActive", true}}), 1);
}

TEST_F(ShellOverviewTest, IsNothingWhenItCloses) {
    EXPECT_EQ(openedAfter("org.gnome.Shell", {{"OverviewActive", false}}), 0);
}

TEST_F(ShellOverviewTest, IsNoneOfTheShellsOtherProperties) {
    EXPECT_EQ(openedAfter("org.gnome.Shell", {{"Mode", "user"}}), 0);
    opened = 0;
    EXPECT_EQ(openedAfter("org.gnome.Shell.Extensions", {{"OverviewActive", true}}), 0);
}

TEST_F(ShellOverviewTest, DoesNotMindThatThereIsNoBus) {
    overview.setBus(std::nullopt);
}

} // namespace
} // namespace quelby::app
