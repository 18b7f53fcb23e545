// What the item shows, and how it tells of changes.
#include "app/linux/tray/status_notifier_item.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QFileInfo>
#include <gmock/gmock.h>

#include "app/linux/tray/status_icon.h"
#include "status_notifier_fixture.h"

namespace quelby::app {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ShownItem : public StatusNotifierItemTest {
protected:
    [[nodiscard]] DBusPictures pictures() { return qdbus_cast<DBusPictures>(property("IconPixmap")); }

    // The pictures are those of the drawing, at the sides that hosts ask for.
    template <typename Drawing>
    void expectPicturesOf(const Drawing& drawing) {
        const auto shown = pictures();
        constexpr int sides[] = {16, 22, 24, 32, 44};
        ASSERT_THAT(shown, SizeIs(std::size(sides)));
        for (int i = 0; i < shown.size(); ++i) {
            const auto expected = dbusPicture(drawing(sides[i]));
            EXPECT_EQ(shown[i].width, expected.width);
            EXPECT_EQ(shown[i].height, expected.height);
            EXPECT_EQ(shown[i].bytes, expected.bytes);
        }
    }
};

TEST_F(ShownItem, SaysWhatItIs) {
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

TEST_F(ShownItem, GivesEachPropertyAloneAsItGivesThemAll) {
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

TEST_F(ShownItem, IsALabelBesideANamedIconAndWithoutMenuInGnome) {
    showAt("gnome-shell");
    EXPECT_EQ(property("XAyatanaLabel").toString(), "-12W");
    EXPECT_EQ(property("XAyatanaLabelGuide").toString(), "-888W");
    EXPECT_EQ(property("IconName").toString(), "battery-level-80-symbolic");
    EXPECT_EQ(property("Menu").value<QDBusObjectPath>().path(), "/NO_DBUSMENU");
    expectPicturesOf([](int side) { return symbolIcon("battery.75percent", content.ink, side); });
}

TEST_F(ShownItem, IsALabelBesideAFileForTheIndicatorService) {
    showAt("ayatana-indicat");
    EXPECT_EQ(property("XAyatanaLabel").toString(), "-12W");
    EXPECT_EQ(property("Menu").value<QDBusObjectPath>().path(), "/MenuBar");
    const auto file = property("IconName").toString();
    EXPECT_TRUE(QFileInfo(file).isAbsolute());
    EXPECT_EQ(QImage(file).convertToFormat(QImage::Format_ARGB32_Premultiplied),
              symbolIcon("battery.75percent", content.ink, 44));
}

TEST_F(ShownItem, KeepsTheFilesOfItsIconsToItsUser) {
    showAt("ayatana-indicat");
    const auto folder = QFileInfo(property("IconName").toString()).dir();
    EXPECT_EQ(std::filesystem::status(folder.path().toStdString()).permissions(),
              std::filesystem::perms(0700));
}

TEST_F(ShownItem, DrawsItsPicturesAnewWhereTheTitleChanges) {
    showAt("waybar");
    const auto before = pictures();
    auto changed = content;
    changed.title = "-13W";
    item.show(changed);
    expectPicturesOf([](int side) { return wideIcon("battery.75percent", "-13W", content.ink, side); });
    EXPECT_NE(pictures().last().bytes, before.last().bytes);
}

TEST_F(ShownItem, IsAWidePictureWithoutAnyLabelForMateAndWaybar) {
    for (const auto* const host : {"notification-ar", "waybar"}) {
        showAt(host);
        const auto all = peer.properties(object);
        EXPECT_FALSE(all.contains("XAyatanaLabel")); // where there is one, MATE shows no icon
        EXPECT_FALSE(all.contains("XAyatanaLabelGuide"));
        EXPECT_EQ(all["IconName"].toString(), "");
        EXPECT_EQ(all["Menu"].value<QDBusObjectPath>().path(), "/MenuBar");
        expectPicturesOf([](int side) { return wideIcon("battery.75percent", "-12W", content.ink, side); });
    }
}

TEST_F(ShownItem, IsASquareWithTheTitleInItElsewhere) {
    showAt("panel-6-systray");
    const auto all = peer.properties(object);
    EXPECT_FALSE(all.contains("XAyatanaLabel"));
    EXPECT_EQ(all["IconName"].toString(), "");
    EXPECT_EQ(all["Menu"].value<QDBusObjectPath>().path(), "/MenuBar");
    expectPicturesOf([](int side) { return compactIcon("battery.75percent", "-12W", content.ink, side); });
}

TEST_F(ShownItem, DrawsAnotherTitleAndThenAnotherSymbolInItsSquare) {
    showAt("panel-6-systray");
    static_cast<void>(property("IconPixmap"));
    auto next = content;
    next.title = "8W";
    item.show(next);
    expectPicturesOf([](int side) { return compactIcon("battery.75percent", "8W", content.ink, side); });
    next.symbol = "bolt.fill";
    item.show(next);
    expectPicturesOf([](int side) { return compactIcon("bolt.fill", "8W", content.ink, side); });
}

TEST_F(ShownItem, FollowsAChangeOfHosts) {
    showAt("waybar");
    item.setHost(trayHost("gnome-shell"));
    EXPECT_THAT(signalsSoFar(), ElementsAre("NewIcon", "XAyatanaNewLabel", "PropertiesChanged"));
    EXPECT_EQ(property("XAyatanaLabel").toString(), "-12W");
    item.setHost(trayHost("waybar"));
    EXPECT_THAT(signalsSoFar(), ElementsAre("NewIcon"));
    EXPECT_FALSE(peer.properties(object).contains("XAyatanaLabel"));
}

TEST_F(ShownItem, SignalsALabelThatChangesAndNothingElse) {
    showAt("gnome-shell");
    auto changed = content;
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

TEST_F(ShownItem, SignalsAnIconOnlyWhereWhatIsDrawnChanges) {
    auto otherTitle = content;
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

TEST_F(ShownItem, SignalsATitleAndAToolTipThatChangeTogetherOnceToAHostThatReadsAllAnyway) {
    auto changed = content;
    changed.title = "-13W";
    changed.toolTip = "79 % discharging";
    showAt("panel-6-systray");
    item.show(changed);
    EXPECT_THAT(signalsSoFar(), ElementsAre("NewIcon"));
    changed.toolTip = "78 % discharging";
    item.show(changed);
    EXPECT_THAT(signalsSoFar(), ElementsAre("NewToolTip"));
    showAt("xapp-sn-watcher");
    item.show(changed);
    EXPECT_THAT(signalsSoFar(), ElementsAre("NewIcon", "NewToolTip"));
}

TEST_F(ShownItem, WritesItsFileAnewUnderAnotherNameOnlyForAnotherSymbol) {
    showAt("ayatana-indicat");
    const auto first = property("IconName").toString();
    auto changed = content;
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

TEST_F(ShownItem, SignalsAnIconInAnotherInk) {
    auto dark = content;
    dark.ink = {darkInk, std::nullopt};
    for (const auto* const host : {"gnome-shell", "ayatana-indicat", "waybar", "lxqt-panel"}) {
        showAt(host);
        item.show(dark);
        EXPECT_THAT(signalsSoFar(), ElementsAre("NewIcon")) << host;
    }
    expectPicturesOf([&](int side) { return compactIcon("battery.75percent", "-12W", dark.ink, side); });
}

TEST_F(ShownItem, SignalsALevelOnlyWhereItsIconBecomesAnother) {
    auto charging = content;
    charging.symbol = "bolt.fill";
    for (const auto* const host : {"gnome-shell", "ayatana-indicat", "waybar", "lxqt-panel"}) {
        showAt(host);
        charging.level = 80;
        item.show(charging);
        static_cast<void>(signalsSoFar());
        charging.level = 89;
        item.show(charging);
        EXPECT_THAT(signalsSoFar(), IsEmpty()) << host;
    }
    showAt("gnome-shell");
    item.show(charging);
    static_cast<void>(signalsSoFar());
    charging.level = 90;
    item.show(charging);
    EXPECT_THAT(signalsSoFar(), ElementsAre("NewIcon"));
    EXPECT_EQ(property("IconName").toString(), "battery-level-90-charging-symbolic");
}

TEST_F(ShownItem, SignalsAToolTipThatChanges) {
    showAt("kded5");
    auto changed = content;
    changed.toolTip = "79 % discharging";
    item.show(changed);
    EXPECT_THAT(signalsSoFar(), ElementsAre("NewToolTip"));
    EXPECT_EQ(qdbus_cast<DBusToolTip>(property("ToolTip")).text, "79 % discharging");
}

TEST_F(ShownItem, SaysTheToolTipInItsTitleWhereTheHostReadsNothingElse) {
    showAt("lxqt-panel");
    const auto toolTip = qdbus_cast<DBusToolTip>(property("ToolTip"));
    EXPECT_EQ(toolTip.title, "80 % discharging");
    EXPECT_EQ(toolTip.text, "");
}

TEST_F(ShownItem, SaysInItsToolTipWhatItsPictureShortens) {
    auto current = content;
    current.title = "1520 mA";
    for (const auto& [host, text] : std::map<std::string, QString>{{"kded5", "1520 mA, 80 % discharging"},
                                                                   {"waybar", "80 % discharging"}}) {
        showAt(host);
        item.show(current);
        EXPECT_THAT(signalsSoFar(), testing::Contains("NewIcon")) << host;
        EXPECT_EQ(qdbus_cast<DBusToolTip>(property("ToolTip")).text, text) << host;
    }
    showAt("gnome-shell");
    item.show(current);
    EXPECT_EQ(property("XAyatanaLabel").toString(), "1520 mA"); // there is room for it
}

TEST_F(ShownItem, SaysNothingWhileNothingChanges) {
    for (const auto* const host : {"gnome-shell", "ayatana-indicat", "waybar", "lxqt-panel"}) {
        showAt(host);
        for (int tick = 0; tick < 10; ++tick) {
            item.show(content);
        }
        EXPECT_THAT(signalsSoFar(), IsEmpty()) << host;
    }
}

} // namespace
} // namespace quelby::app
