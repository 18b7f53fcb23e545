#include "app/linux/tray/linux_status_item.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/linux/session/session_bus.h"
#include "app/linux/support/bus_peer.h"
#include "app/linux/support/eventually.h"
#include "app/linux/support/fake_watcher.h"
#include "app/linux/tray/status_icon.h"
#include "ui/support/printing.h"

namespace quelby::app {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class LinuxStatusItemTest : public testing::Test {
protected:
    LinuxStatusItemTest() {
        ::unsetenv("DISPLAY"); // a tray of the older kind is not what these are about
        item.setActions({.toggle = [this] { ++toggles; }});
        showFigures("-12W");
    }

    void showFigures(std::string_view title) {
        item.setImage("battery.75percent", "Quelby");
        item.setLevel(80);
        item.setTitle(' ' + std::string(title));
        item.setToolTip("80 % discharging");
        item.setDisplay(MenuBarDisplay::watts);
    }

    void connect() {
        item.setBus(session.connection());
        session.follow([this](const std::optional<QDBusConnection>& now) { item.setBus(now); });
    }

    [[nodiscard]] BusObject object() const {
        const auto service = QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(::getpid());
        return {service, "/StatusNotifierItem", "org.kde.StatusNotifierItem"};
    }

    [[nodiscard]] bool registers(const FakeWatcher& watcher) const {
        return eventually([&] { return !watcher.items.empty() && !shown.empty() && shown.back(); });
    }

    PrivateBus bus;
    std::vector<bool> shown;
    int toggles = 0;
    SessionBus session{std::chrono::milliseconds(20)};
    LinuxStatusItem item{{.pressed = [](std::optional<QPoint>) { return true; },
                          .tokenGiven = [](const QByteArray&) {},
                          .shown = [this](bool now) { shown.push_back(now); }}};
};

TEST_F(LinuxStatusItemTest, RegistersWithTheWatcherThatIsThere) {
    const FakeWatcher watcher("gnome-shell");
    connect();
    ASSERT_TRUE(registers(watcher));
    EXPECT_THAT(watcher.items, ElementsAre(object().service));
    EXPECT_THAT(shown, ElementsAre(true));
    BusPeer peer;
    EXPECT_EQ(peer.property(object(), "XAyatanaLabel").toString(), "-12W"); // as that host wants it
    EXPECT_EQ(peer.property(object(), "IconName").toString(), "battery-level-80-symbolic");
}

TEST_F(LinuxStatusItemTest, RegistersWithAWatcherThatComesLater) {
    connect();
    ASSERT_TRUE(eventually([&] { return !shown.empty(); }));
    EXPECT_THAT(shown, ElementsAre(false));
    const FakeWatcher watcher("lxqt-panel");
    ASSERT_TRUE(registers(watcher));
    EXPECT_THAT(shown, ElementsAre(false, true));
    BusPeer peer;
    EXPECT_FALSE(peer.properties(object()).contains("XAyatanaLabel"));
}

TEST_F(LinuxStatusItemTest, RegistersAgainWithAWatcherThatTakesTheOthersPlace) {
    const FakeWatcher former("gnome-shell");
    connect();
    ASSERT_TRUE(registers(former));
    const FakeWatcher latter("waybar");
    ASSERT_TRUE(registers(latter));
    EXPECT_THAT(former.items, SizeIs(1));
    EXPECT_THAT(latter.items, ElementsAre(object().service));
    BusPeer peer;
    EXPECT_FALSE(peer.properties(object()).contains("XAyatanaLabel"));
    EXPECT_THAT(shown, testing::Each(true)); // and nobody saw a desktop without a tray meanwhile
}

TEST_F(LinuxStatusItemTest, TellsWhenItsWatcherLeavesAndComesBack) {
    auto watcher = std::make_optional<FakeWatcher>("lxqt-panel");
    connect();
    ASSERT_TRUE(registers(*watcher));
    watcher.reset();
    ASSERT_TRUE(eventually([&] { return !shown.back(); }));
    watcher.emplace("lxqt-panel");
    ASSERT_TRUE(registers(*watcher));
    EXPECT_THAT(shown, ElementsAre(true, false, true));
}

TEST_F(LinuxStatusItemTest, IsDrawnInTheInkOfItsPanel) {
    const FakeWatcher watcher("kded5");
    connect();
    ASSERT_TRUE(registers(watcher));
    EXPECT_EQ(item.panelStyle(), PanelStyle::plasma);
    BusPeer peer;
    const auto picture = [&] {
        return qdbus_cast<DBusPictures>(peer.property(object(), "IconPixmap")).value(1).bytes;
    };
    const auto drawn = [&](const StatusInk& ink) {
        return dbusPicture(compactIcon("battery.75percent", "-12W", ink, 22)).bytes;
    };
    EXPECT_EQ(picture(), drawn(platedInk)); // nobody has said anything
    peer.listen(object().service);
    for (const bool isDark : {false, true, false}) {
        static_cast<void>(peer.signalsSoFar(object()));
        item.setPanel({.darkScheme = isDark});
        EXPECT_THAT(peer.signalsSoFar(object()), testing::Contains("NewIcon"));
        EXPECT_EQ(picture(), drawn({isDark ? lightInk : darkInk, std::nullopt}));
    }
}

TEST_F(LinuxStatusItemTest, ChangesItsInkWithTheHost) {
    item.setPanel({.darkScheme = false});
    auto watcher = std::make_optional<FakeWatcher>("kded5");
    connect();
    ASSERT_TRUE(registers(*watcher));
    watcher.emplace("unheard-of");
    ASSERT_TRUE(registers(*watcher));
    EXPECT_EQ(item.panelStyle(), PanelStyle::unknown);
    BusPeer peer;
    EXPECT_EQ(qdbus_cast<DBusPictures>(peer.property(object(), "IconPixmap")).value(1).bytes,
              dbusPicture(compactIcon("battery.75percent", "-12W", platedInk, 22)).bytes);
}

TEST_F(LinuxStatusItemTest, DrawsWhatChangesTogetherOnce) {
    const FakeWatcher watcher("lxqt-panel");
    connect();
    ASSERT_TRUE(registers(watcher));
    BusPeer peer;
    peer.listen(object().service);
    static_cast<void>(peer.signalsSoFar(object()));
    item.setImage("bolt.fill", "Quelby");
    item.setTitle(" 35W");
    EXPECT_THAT(peer.signalsSoFar(object()), ElementsAre("NewIcon"));
}

TEST_F(LinuxStatusItemTest, SaysNothingTickAfterTickWhileNothingChanges) {
    for (const auto* const host : {"gnome-shell", "ayatana-indicat", "waybar", "lxqt-panel"}) {
        const FakeWatcher watcher(host);
        shown.clear(); // so that it is this host which is waited for
        connect();
        ASSERT_TRUE(registers(watcher));
        BusPeer peer;
        peer.listen(object().service);
        static_cast<void>(peer.signalsSoFar(object()));
        for (int tick = 0; tick < 5; ++tick) {
            showFigures("-12W");
            EXPECT_THAT(peer.signalsSoFar(object()), IsEmpty()) << host;
        }
        showFigures("-13W"); // which is how one knows that a signal would have been heard
        EXPECT_THAT(peer.signalsSoFar(object()), testing::Not(IsEmpty())) << host;
        showFigures("-12W");
        static_cast<void>(peer.signalsSoFar(object()));
    }
}

TEST_F(LinuxStatusItemTest, HandsItsPressesOn) {
    const FakeWatcher watcher("lxqt-panel");
    connect();
    ASSERT_TRUE(registers(watcher));
    BusPeer peer;
    EXPECT_EQ(peer.call(object(), "Activate", {5, 6}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(toggles, 1);
}

TEST_F(LinuxStatusItemTest, ComesBackWithTheBus) {
    auto watcher = std::make_optional<FakeWatcher>("lxqt-panel");
    connect();
    ASSERT_TRUE(registers(*watcher));
    bus.stop();
    ASSERT_TRUE(eventually([&] { return !shown.back(); }));
    watcher.reset();
    bus.start();
    watcher.emplace("waybar");
    ASSERT_TRUE(registers(*watcher));
    EXPECT_THAT(watcher->items, ElementsAre(object().service));
    BusPeer peer;
    EXPECT_EQ(peer.property(object(), "Id").toString(), "quelby");
    EXPECT_EQ(peer.call(object(), "Activate", {5, 6}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(toggles, 1);
}

TEST_F(LinuxStatusItemTest, ShowsNothingWithoutABus) {
    bus.stop();
    connect();
    EXPECT_THAT(shown, ElementsAre(false));
    EXPECT_TRUE(item.hasButton());
}

TEST_F(LinuxStatusItemTest, ComesWithABusThatStartsLater) {
    bus.stop();
    connect();
    bus.start();
    const FakeWatcher watcher("lxqt-panel");
    ASSERT_TRUE(registers(watcher));
}

} // namespace
} // namespace quelby::app
