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

TEST_F(PanelTheme, IsNoneForTheOthers) {
    folder.write("plasmarc", "[Theme]\nname=default\n");
    for (const auto style : {PanelStyle::dark, PanelStyle::published, PanelStyle::unknown}) {
        EXPECT_EQ(theme(style), "");
    }
}

} // namespace
} // namespace quelby::app
