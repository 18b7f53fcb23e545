#include "app/linux/session/desktop_appearance.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/linux/support/eventually.h"
#include "app/linux/support/private_bus.h"
#include "app/linux/support/x_settings_property.h"
#include "support/temporary_folder.h"

namespace quelby {

static void PrintTo(const Appearance& appearance, std::ostream* stream) {
    *stream << (appearance.dark ? "dark" : "light") << (appearance.animated ? ", animated" : ", still")
            << (appearance.contrast ? ", contrast" : "") << ", text " << appearance.textScale << ", accent "
            << testing::PrintToString(appearance.accent);
}

} // namespace quelby

namespace quelby::app {
namespace {

constexpr Appearance light{.dark = false, .animated = true};
constexpr Appearance dark{.dark = true, .animated = true};
constexpr Appearance still{.dark = false, .animated = false};

XSettings themed(const std::string& name) {
    return XSettings(xSettingsProperty({{"Net/ThemeName", name}}));
}

// The desktop's portal, as far as it is asked.
class FakePortal final : public QDBusVirtualObject {
public:
    explicit FakePortal(std::map<QString, QVariant> settings) : settings_(std::move(settings)) {
        bus_->registerVirtualObject("/org/freedesktop/portal/desktop", this);
        bus_->registerService("org.freedesktop.portal.Desktop");
    }

    FakePortal(const FakePortal&) = delete;
    FakePortal& operator=(const FakePortal&) = delete;

    ~FakePortal() override { bus_->unregisterObject("/org/freedesktop/portal/desktop"); }

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        ++questions;
        const auto found = settings_.find(message.arguments().value(1).toString());
        if (message.member() != "Read" || found == settings_.end()) {
            return false;
        }
        const auto wrapped = QVariant::fromValue(QDBusVariant(found->second)); // twice, as the portal does
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(wrapped))));
    }

    void changeAccent(double red, double green, double blue) {
        QDBusArgument color;
        color.beginStructure();
        color << red << green << blue;
        color.endStructure();
        change("org.freedesktop.appearance", "accent-color", QVariant::fromValue(color));
    }

    void change(const QString& group, const QString& key, const QVariant& value) {
        auto signal = QDBusMessage::createSignal("/org/freedesktop/portal/desktop",
                                                 "org.freedesktop.portal.Settings", "SettingChanged");
        signal.setArguments({group, key, QVariant::fromValue(QDBusVariant(value))});
        EXPECT_TRUE(bus_->send(signal));
    }

    int questions = 0;

private:
    BusConnection bus_;
    std::map<QString, QVariant> settings_;
};

class DesktopAppearanceTest : public testing::Test {
protected:
    [[nodiscard]] bool becomes(const Appearance& expected) const {
        return eventually([&] { return appearance.current() == expected; });
    }

    TemporaryFolder folder;
    PrivateBus bus;
    BusConnection connection;
    int changes = 0;
    DesktopAppearance appearance{QString::fromStdString(folder.path().string()), [this] { ++changes; }};
};

TEST_F(DesktopAppearanceTest, IsWhatThePortalSays) {
    FakePortal portal({{"color-scheme", 1U}, {"enable-animations", false}});
    appearance.setBus(*connection);
    ASSERT_TRUE(becomes({.dark = true, .animated = false}));
    EXPECT_EQ(changes, 2);
}

TEST_F(DesktopAppearanceTest, FollowsThePortal) {
    FakePortal portal({{"color-scheme", 1U}});
    appearance.setBus(*connection);
    ASSERT_TRUE(becomes(dark));
    portal.change("org.freedesktop.appearance", "color-scheme", 2U);
    ASSERT_TRUE(becomes(light));
    portal.change("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0");
    ASSERT_TRUE(becomes(still));
    portal.change("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0.5");
    ASSERT_TRUE(becomes(light));
    portal.change("org.gnome.desktop.interface", "enable-animations", false);
    ASSERT_TRUE(becomes(still));
    EXPECT_EQ(changes, 5);
    portal.change("org.freedesktop.appearance", "contrast", 1U);
    ASSERT_TRUE(becomes({.dark = false, .animated = false, .contrast = true}));
    portal.change("org.gnome.desktop.interface", "text-scaling-factor", 1.25);
    ASSERT_TRUE(becomes({.dark = false, .animated = false, .contrast = true, .textScale = 1.25}));
}

TEST_F(DesktopAppearanceTest, PassesOverWhatItDoesNotKnow) {
    FakePortal portal({{"color-scheme", 1U}});
    appearance.setBus(*connection);
    ASSERT_TRUE(becomes(dark));
    portal.change("org.freedesktop.appearance", "accent-color", 2U); // which is no colour
    portal.change("org.example", "color-scheme", 2U);
    portal.change("org.gnome.desktop.interface", "enable-animations", false);
    ASSERT_TRUE(becomes({.dark = true, .animated = false})); // and what came before it changed nothing
    EXPECT_EQ(changes, 2);
}

// GNOME's switch back says that it does not care.
TEST_F(DesktopAppearanceTest, IsLightAgainWhereThePortalDoesNotCareAnyMore) {
    FakePortal portal({{"color-scheme", 1U}, {"gtk-theme", "Adwaita-dark"}});
    appearance.setBus(*connection);
    ASSERT_TRUE(becomes(dark));
    EXPECT_EQ(appearance.darkScheme(), true);
    portal.change("org.gnome.desktop.interface", "gtk-theme", "Adwaita");
    portal.change("org.freedesktop.appearance", "color-scheme", 0U);
    ASSERT_TRUE(becomes(light));
    EXPECT_EQ(appearance.darkScheme(), std::nullopt);
    portal.change("org.freedesktop.appearance", "color-scheme", 1U);
    ASSERT_TRUE(becomes(dark));
}

TEST_F(DesktopAppearanceTest, HasTheAccentOfTheDesktop) {
    FakePortal portal({});
    appearance.setBus(*connection);
    portal.changeAccent(1, 0.5, 0.2);
    ASSERT_TRUE(becomes({.accent = 0xFF8033}));
    portal.changeAccent(-1, -1, -1); // for none
    ASSERT_TRUE(becomes(light));
    portal.change("org.kde.kdeglobals.General", "AccentColor", "61,174,233");
    ASSERT_TRUE(becomes({.accent = 0x3DAEE9}));
}

TEST_F(DesktopAppearanceTest, AsksAPortalThatIsStartedLater) {
    appearance.setBus(*connection);
    const FakePortal portal({{"color-scheme", 1U}});
    EXPECT_TRUE(becomes(dark));
}

TEST_F(DesktopAppearanceTest, KeepsWhatAPortalSaidThatIsGoneAndAsksTheNextOne) {
    {
        const FakePortal portal({{"color-scheme", 1U}});
        appearance.setBus(*connection);
        ASSERT_TRUE(becomes(dark));
    }
    const FakePortal portal({{"color-scheme", 2U}});
    EXPECT_TRUE(becomes(light));
    EXPECT_EQ(changes, 2);
}

TEST_F(DesktopAppearanceTest, FollowsTheThemeOfX11BothWays) {
    appearance.setXSettings(themed("Adwaita-dark"));
    EXPECT_EQ(appearance.current(), dark);
    appearance.setXSettings(themed("Adwaita-dark"));
    EXPECT_EQ(changes, 1);
    appearance.setXSettings(themed("Adwaita"));
    EXPECT_EQ(appearance.current(), light);
    EXPECT_EQ(changes, 2);
}

TEST_F(DesktopAppearanceTest, IsThatOfTheSettingsFileWithoutAPortal) {
    folder.write("gtk-3.0/settings.ini", "[Settings]\ngtk-theme-name=Adwaita-dark\n");
    const DesktopAppearance other(QString::fromStdString(folder.path().string()), [] {});
    EXPECT_EQ(other.current(), dark);
    EXPECT_EQ(appearance.current(), light);
    appearance.refresh();
    EXPECT_EQ(appearance.current(), dark);
    folder.write("gtk-3.0/settings.ini", "");
    appearance.refresh();
    EXPECT_EQ(appearance.current(), light);
    appearance.setBus(std::nullopt);
    EXPECT_EQ(appearance.current(), light);
}

} // namespace
} // namespace quelby::app
