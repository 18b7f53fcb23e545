#include "app/linux/session/x_desktop.h"

#include <cstdint>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/linux/support/eventually.h"
#include "app/linux/support/x_screen.h"

namespace quelby::app {
namespace {

class XDesktopTest : public testing::Test {
protected:
    void SetUp() override {
        const auto missing = XScreen::missing();
        ASSERT_FALSE(missing) << *missing << " is not installed";
        screen.emplace();
        ::setenv("DISPLAY", screen->display().c_str(), 1);
    }

    void TearDown() override { ::unsetenv("DISPLAY"); }

    void connect() {
        desktop = XDesktop::connect({.settingsChanged = [this] { ++settingsChanges; },
                                     .trayChanged = [this] { ++trayChanges; },
                                     .gone = [this] { ++ends; }});
        ASSERT_NE(desktop, nullptr);
    }

    std::optional<XScreen> screen;
    int settingsChanges = 0;
    int trayChanges = 0;
    int ends = 0;
    std::unique_ptr<XDesktop> desktop;
};

TEST_F(XDesktopTest, HasTheSettingsAtOnceAndFollowsThem) {
    screen->setSettings({{"Net/ThemeName", "Adwaita"}});
    connect();
    EXPECT_EQ(desktop->settings().text("Net/ThemeName"), "Adwaita");
    screen->setSettings({{"Net/ThemeName", "Adwaita-dark"}, {"Net/DoubleClickTime", 250}});
    ASSERT_TRUE(eventually([&] { return settingsChanges > 0; }));
    EXPECT_EQ(desktop->settings().text("Net/ThemeName"), "Adwaita-dark");
    EXPECT_EQ(desktop->settings().number("Net/DoubleClickTime"), 250);
    EXPECT_EQ(trayChanges, 0);
}

TEST_F(XDesktopTest, TellsOfATrayThatComesAndGoes) {
    ASSERT_TRUE(isInstalled("trayer"));
    connect();
    EXPECT_EQ(desktop->trayInk(), std::nullopt);
    RunningProgram tray({"/usr/bin/env", "trayer"}, {{"DISPLAY", screen->display()}});
    ASSERT_TRUE(eventually([&] { return trayChanges > 0; }));
    EXPECT_TRUE(screen->hasTray());
    const int soFar = trayChanges;
    tray.signal(SIGTERM);
    EXPECT_TRUE(eventually([&] { return trayChanges > soFar; }));
}

TEST_F(XDesktopTest, TellsOnceThatTheServerIsGone) {
    connect();
    screen->end();
    ASSERT_TRUE(eventually([&] { return ends > 0; }));
    for (int i = 0; i < 10; ++i) {
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(ends, 1);
}

TEST(XDesktop, IsNoneWithoutAServer) {
    ::unsetenv("DISPLAY");
    EXPECT_EQ(XDesktop::connect({}), nullptr);
}

QByteArray trayColors(const std::vector<std::uint32_t>& parts) {
    return {reinterpret_cast<const char*>(parts.data()), static_cast<int>(parts.size() * sizeof parts[0])};
}

TEST(TrayInk, IsTheFirstOfTheColoursWhereTheyDiffer) { // as MATE publishes them
    EXPECT_EQ(trayInk(trayColors({11822, 13364, 13878, 52428, 0, 0, 62965, 31097, 0, 13107, 53713, 31354})),
              0xFF2E3436);
    EXPECT_EQ(trayInk(trayColors({65535, 65535, 65535, 0, 0, 0, 0, 0, 0, 0, 0, 0})), 0xFFFFFFFF);
}

TEST(TrayInk, IsNoneWhereTheTrayHasNoIdea) {
    EXPECT_EQ(trayInk({}), std::nullopt);
    EXPECT_EQ(trayInk(trayColors({65535, 65535, 65535})), std::nullopt);
    EXPECT_EQ(trayInk(trayColors({11822, 13364, 13878, 11822, 13364, 13878, 11822, 13364, 13878, 11822, 13364,
                                  13878})), // as XFCE publishes them, whatever its panel looks like
              std::nullopt);
}

} // namespace
} // namespace quelby::app
