#include "app/linux/tray/panel_theme.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace quelby::app {
namespace {

class PanelTheme : public testing::Test {
protected:
    [[nodiscard]] std::string theme(PanelStyle style) const {
        return panelTheme(style, QString::fromStdString(folder.path().string()));
    }

    TemporaryFolder folder;
};

TEST_F(PanelTheme, OfPlasmaIsTheUsersChoiceOrThatOfTheWholeLook) {
    EXPECT_EQ(theme(PanelStyle::plasma), "");
    folder.write("kdedefaults/plasmarc", "[Theme]\nname=breeze-dark\n");
    EXPECT_EQ(theme(PanelStyle::plasma), "breeze-dark");
    folder.write("plasmarc", "[PlasmaToolTips]\nDelay=200\n");
    EXPECT_EQ(theme(PanelStyle::plasma), "breeze-dark");
    folder.write("plasmarc", "[Theme]\nname=default\n");
    EXPECT_EQ(theme(PanelStyle::plasma), "default");
}

TEST_F(PanelTheme, OfLxqtIsTheUsersChoice) {
    folder.write("lxqt/lxqt.conf", "[General]\ntheme=ambiance\n\n[Qt]\nstyle=Fusion\n");
    EXPECT_EQ(theme(PanelStyle::lxqt), "ambiance");
}

// Without them the panel has no theme, whatever else lies on the disk.
TEST_F(PanelTheme, OfLxqtIsElseThatOfTheFoldersForEverybody) {
    const TemporaryFolder shared;
    shared.write("lxqt/lxqt.conf", "[General]\ntheme=Clearlooks\n");
    const auto before = qgetenv("XDG_CONFIG_DIRS");
    qputenv("XDG_CONFIG_DIRS", "/nonexistent");
    EXPECT_EQ(theme(PanelStyle::lxqt), "");
    qputenv("XDG_CONFIG_DIRS", QByteArray("/nonexistent:").append(shared.path().c_str()));
    EXPECT_EQ(theme(PanelStyle::lxqt), "Clearlooks");
    folder.write("lxqt/lxqt.conf", "[General]\ntheme=ambiance\n");
    EXPECT_EQ(theme(PanelStyle::lxqt), "ambiance");
    before.isEmpty() ? static_cast<void>(qunsetenv("XDG_CONFIG_DIRS"))
                     : static_cast<void>(qputenv("XDG_CONFIG_DIRS", before));
}

TEST_F(PanelTheme, IsNoneForTheOthers) {
    folder.write("plasmarc", "[Theme]\nname=default\n");
    for (const auto style : {PanelStyle::dark, PanelStyle::published, PanelStyle::unknown}) {
        EXPECT_EQ(theme(style), "");
    }
}

} // namespace
} // namespace quelby::app
