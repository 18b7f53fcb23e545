#include "app/linux/session/desktop_settings.h"

#include <cmath>

#include <gtest/gtest.h>

#include "app/linux/support/x_settings_property.h"
#include "support/temporary_folder.h"

namespace quelby::app {
namespace {

using namespace std::chrono_literals;

XSettings xSettings(const XSettingValues& values) {
    return XSettings(xSettingsProperty(values));
}

const XSettings xLight = xSettings({{"Net/ThemeName", "Adwaita"}});
const XSettings xDark = xSettings({{"Net/ThemeName", "Adwaita-dark"}});

struct Said {
    const char* name;
    DesktopSettings settings;
    bool dark;
};

const Said everythingSaid[] = {
    {"nobody says anything", {}, false},
    {"the portal asks for dark", {.portal = {.colorScheme = 1}}, true},
    {"the portal asks for light", {.portal = {.colorScheme = 2}}, false},
    {"the portal asks for light under a dark theme", {.portal = {.colorScheme = 2}, .x = xDark}, false},
    {"the portal asks for dark under a light theme", {.portal = {.colorScheme = 1}, .x = xLight}, true},
    {"the portal does not care", {.portal = {.colorScheme = 0}}, false},
    {"the portal says what nobody knows", {.portal = {.colorScheme = 3}}, false},
    {"the portal does not care under a dark theme of X11", {.portal = {.colorScheme = 0}, .x = xDark}, true},
    {"a dark theme of X11", {.x = xDark}, true},
    {"a dark theme of the portal", {.portal = {.theme = "Adwaita-dark"}}, true},
    {"X11 knows better than the portal", {.portal = {.theme = "Adwaita-dark"}, .x = xLight}, false},
    {"X11 knows better than the file", {.x = xLight, .file = {.theme = "Adwaita-dark"}}, false},
    {"the portal knows better than the file",
     {.portal = {.theme = "Adwaita"}, .file = {.theme = "Adwaita-dark"}},
     false},
    {"a dark theme in the file", {.file = {.theme = "Adwaita-dark"}}, true},
    {"a user who prefers dark", {.x = xLight, .file = {.prefersDark = true}}, true},
    {"a user who does not prefer dark, under a dark theme",
     {.x = xDark, .file = {.prefersDark = false}},
     true},
    {"what is stored asks for dark", {.stored = {.colorScheme = 1}}, true},
    {"what is stored asks for light under a dark theme",
     {.stored = {.colorScheme = 2}, .file = {.theme = "Adwaita-dark"}},
     false},
    {"the portal knows better than what is stored",
     {.portal = {.colorScheme = 2}, .stored = {.colorScheme = 1}},
     false},
    {"the portal does not care, and what is stored is old",
     {.portal = {.colorScheme = 0}, .stored = {.colorScheme = 1}},
     false},
    {"X11 has a theme, and what is stored is another desktop's",
     {.x = xLight, .stored = {.colorScheme = 1}},
     false},
    {"GNOME's own theme and what it stores",
     {.x = xLight, .stored = {.colorScheme = 1}, .isGnome = true},
     true},
    {"a dark theme that is stored",
     {.stored = {.theme = "Adwaita-dark"}, .file = {.theme = "Adwaita"}},
     true},
    {"X11 has no name", {.x = xSettings({{"Net/ThemeName", ""}}), .file = {.theme = "Arc-Dark"}}, true},
};

TEST(DesktopSettings, AreDarkByWhoeverKnowsBest) {
    for (const auto& each : everythingSaid) {
        EXPECT_EQ(appearance(each.settings).dark, each.dark) << each.name;
    }
}

TEST(DesktopSettings, AskForDarkOrLightOrDoNotCare) {
    EXPECT_EQ(darkScheme({.portal = {.colorScheme = 1}}), true);
    EXPECT_EQ(darkScheme({.portal = {.colorScheme = 2}}), false);
    EXPECT_EQ(darkScheme({.portal = {.colorScheme = 0}, .x = xDark}), std::nullopt);
    EXPECT_EQ(darkScheme({.x = xDark}), std::nullopt);
    EXPECT_EQ(darkScheme({.file = {.darkColors = true}}), true);
    EXPECT_EQ(darkScheme({.file = {.darkColors = false}}), false);
    EXPECT_EQ(darkScheme({.portal = {.colorScheme = 2}, .file = {.darkColors = true}}), false);
}

TEST(DesktopSettings, AreAnimatedUnlessAnybodySaysOtherwise) {
    const auto animated = [](const DesktopSettings& settings) { return appearance(settings).animated; };
    EXPECT_TRUE(animated({}));
    EXPECT_FALSE(animated({.portal = {.animated = false}}));
    EXPECT_FALSE(animated({.portal = {.animationFactor = 0}}));
    EXPECT_FALSE(animated({.portal = {.animated = true, .animationFactor = 0}}));
    EXPECT_FALSE(animated({.portal = {.animated = false, .animationFactor = 1}}));
    EXPECT_TRUE(animated({.portal = {.animated = true}, .x = xSettings({{"Gtk/EnableAnimations", 0}})}));
    EXPECT_FALSE(animated({.x = xSettings({{"Gtk/EnableAnimations", 0}})}));
    EXPECT_TRUE(animated({.x = xSettings({{"Gtk/EnableAnimations", 1}}), .file = {.animated = false}}));
    EXPECT_FALSE(animated({.file = {.animated = false}}));
    EXPECT_FALSE(animated({.stored = {.animated = false}}));
    EXPECT_TRUE(animated({.portal = {.animated = true}, .stored = {.animated = false}}));
}

TEST(DesktopSettings, WantContrastWhereThePortalOrTheThemeSaysSo) {
    const auto contrast = [](const DesktopSettings& settings) { return appearance(settings).contrast; };
    EXPECT_FALSE(contrast({}));
    EXPECT_FALSE(contrast({.portal = {.contrast = 0}}));
    EXPECT_TRUE(contrast({.portal = {.contrast = 1}}));
    EXPECT_FALSE(contrast({.portal = {.contrast = 2}}));
    EXPECT_TRUE(contrast({.x = xSettings({{"Net/ThemeName", "HighContrastInverse"}})}));
    EXPECT_TRUE(contrast({.stored = {.contrast = 1}}));
    EXPECT_FALSE(contrast({.portal = {.contrast = 0}, .stored = {.contrast = 1}}));
}

TEST(DesktopSettings, HaveATextThatIsAtMostHalfAsLargeAgain) {
    EXPECT_EQ(appearance({}).textScale, 1);
    for (const auto& [asked, given] : std::map<double, double>{
             {0.0, 1.0}, {0.75, 1.0}, {1.0, 1.0}, {1.25, 1.25}, {1.5, 1.5}, {1.51, 1.5}, {-1.0, 1.0}}) {
        EXPECT_EQ(appearance({.portal = {.textScale = asked}}).textScale, given) << asked;
    }
    EXPECT_EQ(appearance({.portal = {.textScale = std::nan("")}}).textScale, 1);
    EXPECT_EQ(appearance({.stored = {.textScale = 1.25}}).textScale, 1.25);
    EXPECT_EQ(appearance({.file = {.fontResolution = 120}}).textScale, 1.25);
    EXPECT_EQ(appearance({.portal = {.textScale = 1.5}, .file = {.fontResolution = 120}}).textScale, 1.5);
}

TEST(DesktopSettings, HaveTheAccentOfThePortalOrElseTheStoredOne) {
    EXPECT_EQ(appearance({}).accent, std::nullopt);
    EXPECT_EQ(appearance({.portal = {.accent = 0x112233}}).accent, 0x112233U);
    EXPECT_EQ(appearance({.stored = {.accent = 0x445566}}).accent, 0x445566U);
    EXPECT_EQ(appearance({.file = {.accent = 0x778899}}).accent, 0x778899U);
    EXPECT_EQ(appearance({.portal = {.accent = 0x112233}, .stored = {.accent = 0x445566}}).accent, 0x112233U);
}

TEST(Accent, IsThreePartsFromZeroToOne) {
    EXPECT_EQ(accentFrom(0, 0, 0), 0U);
    EXPECT_EQ(accentFrom(1, 0.5, 0.2), 0xFF8033U);
    EXPECT_EQ(accentFrom(1, 1, 1), 0xFFFFFFU);
    for (const double wrong : {-0.01, 1.01, std::nan("")}) {
        EXPECT_EQ(accentFrom(wrong, 0, 0), std::nullopt) << wrong;
        EXPECT_EQ(accentFrom(0, wrong, 0), std::nullopt) << wrong;
        EXPECT_EQ(accentFrom(0, 0, wrong), std::nullopt) << wrong;
    }
}

TEST(Accent, IsThreeNumbersInTheWordsOfKde) {
    EXPECT_EQ(colorOfKde("61,174,233"), 0x3DAEE9U);
    EXPECT_EQ(colorOfKde("0,0,0"), 0U);
    EXPECT_EQ(colorOfKde("255,255,255"), 0xFFFFFFU);
    for (const auto* const wrong :
         {"", "61", "61,174", "61,174,", "61,174,233,1", "256,0,0", "-1,0,0", "a,b,c", "#3daee9"}) {
        EXPECT_EQ(colorOfKde(wrong), std::nullopt) << wrong;
    }
}

TEST(DesktopSettings, HaveATimeForADoublePress) {
    EXPECT_EQ(doublePress({}), 400ms);
    for (const auto& [set, time] : std::map<int, std::chrono::milliseconds>{
             {0, 0ms}, {1, 1ms}, {800, 800ms}, {2000, 2s}, {2001, 2s}, {-1, 0ms}}) {
        EXPECT_EQ(doublePress({.x = xSettings({{"Net/DoubleClickTime", set}})}), time) << set;
    }
}

ToolkitSettings inFile(const std::string& content) {
    const TemporaryFolder folder;
    folder.write("gtk-3.0/settings.ini", content);
    return toolkitSettings(QString::fromStdString(folder.path().string()), "GNOME");
}

TEST(ToolkitSettings, AreWhatTheFileSays) {
    EXPECT_EQ(inFile("[Settings]\ngtk-application-prefer-dark-theme=1\n").prefersDark, true);
    EXPECT_EQ(inFile("[Settings]\ngtk-application-prefer-dark-theme=true\n").prefersDark, true);
    EXPECT_EQ(inFile("[Settings]\ngtk-application-prefer-dark-theme=0\n").prefersDark, false);
    EXPECT_EQ(inFile("[Settings]\ngtk-theme-name=Arc-Dark\n").theme, "Arc-Dark");
    EXPECT_EQ(inFile("[Settings]\ngtk-enable-animations=0\n").animated, false);
    EXPECT_EQ(inFile("[Settings]\ngtk-enable-animations=1\n").animated, true);
}

TEST(ToolkitSettings, AreNoneWhereTheFileSaysNothing) {
    for (const auto* const content : {"", "[Settings]\ngtk-font-name=Sans 10\n",
                                      "[Other]\ngtk-theme-name=a-dark\n", "no settings at all"}) {
        EXPECT_EQ(inFile(content), ToolkitSettings()) << content;
    }
    EXPECT_EQ(toolkitSettings("/nonexistent", "KDE"), ToolkitSettings());
}

TEST(ToolkitSettings, HaveTheColoursOfKdeOnKdeOnly) {
    const TemporaryFolder folder;
    const auto path = QString::fromStdString(folder.path().string());
    folder.write("kdeglobals",
                 "[General]\nAccentColor=61,174,233\n\n[Colors:Window]\nBackgroundNormal=42,46,50\n");
    EXPECT_EQ(toolkitSettings(path, "KDE").darkColors, true);
    EXPECT_EQ(toolkitSettings(path, "KDE").accent, 0x3DAEE9U);
    EXPECT_EQ(toolkitSettings(path, "GNOME"), ToolkitSettings());
    folder.write("kdeglobals", "[Colors:Window]\nBackgroundNormal=239,240,241\n");
    EXPECT_EQ(toolkitSettings(path, "KDE").darkColors, false);
    EXPECT_EQ(toolkitSettings(path, "KDE").accent, std::nullopt);
    folder.write("kdeglobals", "[Colors:Window]\nBackgroundNormal=light\n");
    EXPECT_EQ(toolkitSettings(path, "KDE").darkColors, std::nullopt);
}

TEST(ToolkitSettings, HaveTheResolutionOfTheFontsOnKdeOnly) {
    const TemporaryFolder folder;
    const auto path = QString::fromStdString(folder.path().string());
    folder.write("kcmfontsrc", "[General]\nforceFontDPIWayland=120\n");
    EXPECT_EQ(toolkitSettings(path, "KDE").fontResolution, 120);
    EXPECT_EQ(toolkitSettings(path, "ubuntu:KDE").fontResolution, 120);
    EXPECT_EQ(toolkitSettings(path, "GNOME").fontResolution, std::nullopt);
    EXPECT_EQ(toolkitSettings(path, "").fontResolution, std::nullopt);
    folder.write("kcmfontsrc", "[General]\nforceFontDPIWayland=0\n");
    EXPECT_EQ(toolkitSettings(path, "KDE").fontResolution, std::nullopt);
}

TEST(DarkTheme, IsOneByAWordOfItsName) {
    for (const auto* const name :
         {"Adwaita-dark", "Arc-Dark", "Yaru-blue-dark", "Mint-Y-Dark-Aqua", "Adwaita:dark", "Numix-BLACK",
          "HighContrastInverse", "BlackMATE", "dark"}) {
        EXPECT_TRUE(isDarkTheme(name)) << name;
    }
    for (const auto* const name :
         {"", "Adwaita", "Darkroom", "Arc-Darker", "HighContrast", "Blackbird", "Menta"}) {
        EXPECT_FALSE(isDarkTheme(name)) << name;
    }
}

} // namespace
} // namespace quelby::app
