#include "app/linux/status_notifier_item.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QFileInfo>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/linux/status_icon.h"
#include "app/linux/support/bus_peer.h"
#include "app/linux/support/eventually.h"
#include "support/fake_desktop.h"
#include "ui/support/printing.h"

namespace quelby::app {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::SizeIs;

const ItemLook look{"battery.75percent", "-12W", "80 % discharging", MenuBarDisplay::watts};

class StatusNotifierItemTest : public testing::Test {
protected:
    StatusNotifierItemTest() {
        registerDBusTypes();
        peer.listen(connection->baseService());
    }

    void showAt(std::string_view host) {
        item.setHost(trayHost(host));
        item.show(look);
        static_cast<void>(signalsSoFar());
    }

    [[nodiscard]] QVariant property(const QString& name) { return peer.property(object, name); }

    [[nodiscard]] DBusPictures pictures() { return qdbus_cast<DBusPictures>(property("IconPixmap")); }

    // The pictures are those of the drawing, at the two sides that hosts ask for.
    template <typename Drawing>
    void expectPicturesOf(const Drawing& drawing) {
        const auto shown = pictures();
        ASSERT_THAT(shown, SizeIs(2));
        for (int i = 0; i < 2; ++i) {
            const auto expected = dbusPicture(drawing(i == 0 ? 22 : 44));
            EXPECT_EQ(shown[i].width, expected.width);
            EXPECT_EQ(shown[i].height, expected.height);
            EXPECT_EQ(shown[i].bytes, expected.bytes);
        }
    }

    [[nodiscard]] std::vector<std::string> signalsSoFar() { return peer.signalsSoFar(object); }

    [[nodiscard]] QDBusMessage call(const QString& method, const QVariantList& arguments = {}) {
        return peer.call(object, method, arguments);
    }

    PrivateBus bus;
    BusConnection connection;
    BusPeer peer;
    std::vector<std::string> done;
    std::optional<QPoint> pressedAt;
    bool acts = true;
    StatusItemActions actions{
        .toggle = [this] { done.emplace_back("toggle"); },
        .scroll = [this](int steps) { done.push_back("scroll " + std::to_string(steps)); }};
    StatusNotifierItem item{*connection, actions, [this](std::optional<QPoint> where) {
                                pressedAt = where;
                                done.emplace_back("press");
                                return acts;
                            }};
    BusObject object{connection->baseService(), "/StatusNotifierItem", "org.kde.StatusNotifierItem"};
};

TEST_F(StatusNotifierItemTest, SaysWhatItIs) {
    showAt("plasmashell");
    const auto all = peer.properties(object);
    EXPECT_EQ(all["Category"].toString(), "Hardware");
    EXPECT_EQ(all["Id"].toString(), "quelby");
    EXPECT_EQ(all["Title"].toString(), "Quelby");
    EXPECT_EQ(all["Status"].toString(), "Active");
    EXPECT_EQ(all["WindowId"].metaType().id(), QMetaType::Int);
    EXPECT_EQ(all["ItemIsMenu"].toBool(), false);
    EXPECT_TRUE(all.contains("OverlayIconPixmap"));
    EXPECT_TRUE(all.contains("AttentionIconPixmap"));
    const auto toolTip = qdbus_cast<DBusToolTip>(all["ToolTip"]);
    EXPECT_EQ(toolTip.title, "Quelby");
    EXPECT_EQ(toolTip.text, "80 % discharging");
    EXPECT_THAT(toolTip.icon, IsEmpty());
}

TEST_F(StatusNotifierItemTest, GivesEachPropertyAloneAsItGivesThemAll) {
    showAt("gnome-shell");
    const auto all = peer.properties(object);
    for (auto one = all.begin(); one != all.end(); ++one) {
        const auto alone = property(one.key());
        EXPECT_EQ(alone.metaType(), one.value().metaType()) << one.key().toStdString();
        if (alone.metaType() != QMetaType::fromType<QDBusArgument>()) {
            EXPECT_EQ(alone, one.value()) << one.key().toStdString();
        }
    }
}

TEST_F(StatusNotifierItemTest, IsALabelBesideANamedIconAndWithoutMenuInGnome) {
    showAt("gnome-shell");
    EXPECT_EQ(property("XAyatanaLabel").toString(), "-12W");
    EXPECT_EQ(property("XAyatanaLabelGuide").toString(), "-888W");
    EXPECT_EQ(property("IconName").toString(), "battery-full-symbolic");
    EXPECT_EQ(property("Menu").value<QDBusObjectPath>().path(), "/NO_DBUSMENU");
    expectPicturesOf([](int side) { return symbolIcon("battery.75percent", side); });
}

TEST_F(StatusNotifierItemTest, IsALabelBesideAFileForTheIndicatorService) {
    showAt("ayatana-indicat");
    EXPECT_EQ(property("XAyatanaLabel").toString(), "-12W");
    EXPECT_EQ(property("Menu").value<QDBusObjectPath>().path(), "/MenuBar");
    const auto file = property("IconName").toString();
    EXPECT_TRUE(QFileInfo(file).isAbsolute());
    EXPECT_EQ(QImage(file).convertToFormat(QImage::Format_ARGB32_Premultiplied),
              symbolIcon("battery.75percent", 44));
}

TEST_F(StatusNotifierItemTest, IsAWidePictureWithoutAnyLabelForMateAndWaybar) {
    for (const auto* const host : {"notification-ar", "waybar"}) {
        showAt(host);
        const auto all = peer.properties(object);
        EXPECT_FALSE(all.contains("XAyatanaLabel")); // where there is one, MATE shows no icon
        EXPECT_FALSE(all.contains("XAyatanaLabelGuide"));
        EXPECT_EQ(all["IconName"].toString(), "");
        EXPECT_EQ(all["Menu"].value<QDBusObjectPath>().path(), "/MenuBar");
        expectPicturesOf([](int side) { return wideIcon("battery.75percent", "-12W", side); });
    }
}

TEST_F(StatusNotifierItemTest, IsASquareWithTheTitleInItElsewhere) {
    showAt("panel-6-systray");
    const auto all = peer.properties(object);
    EXPECT_FALSE(all.contains("XAyatanaLabel"));
    EXPECT_EQ(all["IconName"].toString(), "");
    EXPECT_EQ(all["Menu"].value<QDBusObjectPath>().path(), "/MenuBar");
    expectPicturesOf([](int side) { return compactIcon("battery.75percent", "-12W", side); });
}

TEST_F(StatusNotifierItemTest, FollowsAChangeOfHosts) {
    showAt("waybar");
    item.setHost(trayHost("gnome-shell"));
    EXPECT_THAT(signalsSoFar(), ElementsAre("NewIcon", "XAyatanaNewLabel", "PropertiesChanged"));
    EXPECT_EQ(property("XAyatanaLabel").toString(), "-12W");
    item.setHost(trayHost("waybar"));
    EXPECT_THAT(signalsSoFar(), ElementsAre("NewIcon"));
    EXPECT_FALSE(peer.properties(object).contains("XAyatanaLabel"));
}

TEST_F(StatusNotifierItemTest, SignalsALabelThatChangesAndNothingElse) {
    showAt("gnome-shell");
    auto changed = look;
    changed.title = "-13W";
    item.show(changed);
    EXPECT_THAT(signalsSoFar(), ElementsAre("XAyatanaNewLabel", "PropertiesChanged"));
    EXPECT_EQ(peer.lastArguments("XAyatanaNewLabel"), (QVariantList{"-13W", "-888W"}));
    const auto properties = peer.lastArguments("PropertiesChanged");
    ASSERT_THAT(properties, SizeIs(3));
    EXPECT_EQ(properties[0].toString(), "org.kde.StatusNotifierItem");
    EXPECT_EQ(qdbus_cast<QVariantMap>(properties[1]), (QVariantMap{{"XAyatanaLabel", "-13W"}}));
    EXPECT_EQ(property("XAyatanaLabel").toString(), "-13W");
}

TEST_F(StatusNotifierItemTest, SignalsAnIconOnlyWhereWhatIsDrawnChanges) {
    auto otherTitle = look;
    otherTitle.title = "-13W";
    auto otherSymbol = otherTitle;
    otherSymbol.symbol = "battery.50percent";
    for (const auto* const host : {"waybar", "lxqt-panel"}) {
        showAt(host);
        item.show(otherTitle);
        EXPECT_THAT(signalsSoFar(), ElementsAre("NewIcon")) << host;
        item.show(otherSymbol);
        EXPECT_THAT(signalsSoFar(), ElementsAre("NewIcon")) << host;
    }
    showAt("gnome-shell");
    item.show(otherTitle);
    EXPECT_THAT(signalsSoFar(), ElementsAre("XAyatanaNewLabel", "PropertiesChanged"));
    item.show(otherSymbol);
    EXPECT_THAT(signalsSoFar(), ElementsAre("NewIcon"));
}

TEST_F(StatusNotifierItemTest, WritesItsFileAnewUnderAnotherNameOnlyForAnotherSymbol) {
    showAt("ayatana-indicat");
    const auto first = property("IconName").toString();
    auto changed = look;
    changed.title = "-13W";
    item.show(changed);
    EXPECT_EQ(property("IconName").toString(), first);
    changed.symbol = "bolt.fill";
    item.show(changed);
    const auto second = property("IconName").toString();
    EXPECT_NE(second, first);
    EXPECT_FALSE(QFileInfo::exists(first));
    EXPECT_TRUE(QFileInfo::exists(second));
}

TEST_F(StatusNotifierItemTest, SignalsAToolTipThatChanges) {
    showAt("lxqt-panel");
    auto changed = look;
    changed.toolTip = "79 % discharging";
    item.show(changed);
    EXPECT_THAT(signalsSoFar(), ElementsAre("NewToolTip"));
    EXPECT_EQ(qdbus_cast<DBusToolTip>(property("ToolTip")).text, "79 % discharging");
}

TEST_F(StatusNotifierItemTest, SaysNothingWhileNothingChanges) {
    for (const auto* const host : {"gnome-shell", "ayatana-indicat", "waybar", "lxqt-panel"}) {
        showAt(host);
        for (int tick = 0; tick < 10; ++tick) {
            item.show(look);
        }
        EXPECT_THAT(signalsSoFar(), IsEmpty()) << host;
    }
}

TEST_F(StatusNotifierItemTest, TellsWhereItWasPressed) {
    showAt("lxqt-panel");
    for (const auto* const method : {"Activate", "SecondaryActivate", "ContextMenu"}) {
        done.clear();
        EXPECT_EQ(call(method, {619, 1010}).type(), QDBusMessage::ReplyMessage);
        EXPECT_THAT(pressedAt, Optional(QPoint(619, 1010)));
        EXPECT_THAT(done, ElementsAre("press", "toggle")) << method;
    }
}

TEST_F(StatusNotifierItemTest, TellsNoPlaceThatTheHostMakesUp) {
    for (const auto* const host : {"notification-ar", "waybar"}) {
        showAt(host);
        pressedAt = QPoint();
        EXPECT_EQ(call("Activate", {86, 26}).type(), QDBusMessage::ReplyMessage);
        EXPECT_EQ(pressedAt, std::nullopt);
    }
    showAt("ayatana-indicat");
    EXPECT_EQ(call("XAyatanaSecondaryActivate", {123U}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(pressedAt, std::nullopt);
    EXPECT_THAT(done, ElementsAre("press", "toggle", "press", "toggle", "press", "toggle"));
}

TEST_F(StatusNotifierItemTest, LeavesAPressWithoutEffectThatIsNotToBeActedOn) {
    acts = false;
    showAt("lxqt-panel");
    EXPECT_EQ(call("Activate", {1, 2}).type(), QDBusMessage::ReplyMessage);
    EXPECT_THAT(done, ElementsAre("press"));
}

// Otherwise that host waits for a second press from then on.
TEST_F(StatusNotifierItemTest, AnswersAPressInGnomeWithAnErrorAndActsAllTheSame) {
    showAt("gnome-shell");
    const auto answer = call("Activate", {1500, 16});
    EXPECT_EQ(answer.errorName(), "org.freedesktop.DBus.Error.Failed");
    EXPECT_THAT(pressedAt, Optional(QPoint(1500, 16)));
    EXPECT_THAT(done, ElementsAre("press", "toggle"));
}

TEST_F(StatusNotifierItemTest, ScrollsUpToTheFormerAndDownToTheNextFigure) {
    showAt("lxqt-panel");
    for (const auto& [delta, orientation] :
         std::vector<std::pair<int, QString>>{{120, "vertical"}, {-1, "horizontal"}, {0, "vertical"}}) {
        EXPECT_EQ(call("Scroll", {delta, orientation}).type(), QDBusMessage::ReplyMessage);
    }
    EXPECT_THAT(done, ElementsAre("scroll -1", "scroll 1"));
}

TEST_F(StatusNotifierItemTest, KeepsTheTokenForTheWindowThatComesNext) {
    showAt("lxqt-panel");
    EXPECT_EQ(call("ProvideXdgActivationToken", {"a-token"}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "a-token");
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

TEST_F(StatusNotifierItemTest, RefusesWhatItDoesNotKnow) {
    showAt("lxqt-panel");
    EXPECT_EQ(call("Dance", {1, 2}).errorName(), "org.freedesktop.DBus.Error.UnknownMethod");
    EXPECT_EQ(peer.call({object.service, object.path, "org.example.Other"}, "Activate", {1, 2}).type(),
              QDBusMessage::ErrorMessage);
    const BusObject properties{object.service, object.path, "org.freedesktop.DBus.Properties"};
    for (const auto* const name : {"XAyatanaLabel", "Dance"}) {
        EXPECT_EQ(peer.call(properties, "Get", {object.interface, name}).errorName(),
                  "org.freedesktop.DBus.Error.UnknownProperty");
    }
    EXPECT_EQ(peer.call(properties, "Get", {"org.example.Other", "Id"}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(
        peer.call(properties, "Set", {object.interface, "Title", QVariant::fromValue(QDBusVariant("Other"))})
            .type(),
        QDBusMessage::ErrorMessage);
    EXPECT_EQ(property("Title").toString(), "Quelby");
    EXPECT_THAT(done, IsEmpty());
}

TEST_F(StatusNotifierItemTest, SurvivesCallsWithOtherArguments) {
    showAt("lxqt-panel");
    for (const auto* const method : {"Activate", "Scroll", "ProvideXdgActivationToken", "ContextMenu"}) {
        static_cast<void>(call(method));
        static_cast<void>(call(method, {"words", QStringList{"and", "more"}}));
    }
    EXPECT_EQ(property("Title").toString(), "Quelby");
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

} // namespace
} // namespace quelby::app
