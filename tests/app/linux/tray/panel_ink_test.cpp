// The figure can be read on the panels that there are, by the contrast of the Web Content Accessibility
// Guidelines 2.
#include "app/linux/tray/panel_ink.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QPainter>
#include <gtest/gtest.h>

#include "app/linux/tray/status_icon.h"
#include "app/linux/tray/tray_host.h"

namespace quelby::app {
namespace {

constexpr double readable = 4.5;

double linear(int part) {
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(QRgb color) {
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

double contrast(QRgb one, QRgb other) {
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

struct MeasuredPanel {
    const char* name;
    const char* host; // the process that answers for it
    PanelClues clues;
    QRgb color; // of the panel itself
};

constexpr QRgb adwaitaInk = 0xFF2E3436; // what MATE's tray publishes under a light theme

// Most of the colours were picked from pictures of the desktops, those of LXQt and waybar from the files of
// their themes; where a panel shades from one colour to another, it is the one that is harder to read on.
const MeasuredPanel measuredPanels[] = {
    {"GNOME", "gnome-shell", {}, 0xFF000000},
    {"GNOME's panel under programs in light", "gnome-shell", {.darkScheme = false}, 0xFF000000},
    {"Plasma, Breeze", "kded5", {.darkScheme = false}, 0xFFEFF0F1},
    {"Plasma, Breeze, by name", "kded5", {.darkScheme = false, .panelTheme = "default"}, 0xFFEFF0F1},
    {"Plasma, Breeze Dark", "kded5", {.darkScheme = true}, 0xFF2A2E32},
    {"Plasma, Breeze Twilight", "kded5", {.darkScheme = false, .panelTheme = "breeze-dark"}, 0xFF2A2E32},
    {"Plasma, a light panel, dark programs", "plasmashell", {true, "breeze-light", {}}, 0xFFEFF0F1},
    {"Plasma, a theme of somebody's", "kded5", {.darkScheme = true, .panelTheme = "Sweet"}, 0xFFF0A0C0},
    {"Plasma without its portal", "kded5", {}, 0xFFEFF0F1},
    {"XFCE, its dark panel under a light theme", "panel-6-systray", {}, 0xFF353637},
    {"XFCE, light", "panel-6-systray", {}, 0xFFF5F4F3},
    {"XFCE, a dark theme", "panel-6-systray", {.darkScheme = true}, 0xFF353535},
    {"MATE's tray", "notification-area-applet", {.publishedInk = adwaitaInk}, 0xFFF6F5F4},
    {"MATE's tray, dark", "notification-area-applet", {.publishedInk = 0xFFEEEEEC}, 0xFF353535},
    {"MATE's tray on Wayland", "notification-area-applet", {}, 0xFFF6F5F4},
    {"MATE's indicators", "ayatana-indicator-application", {.publishedInk = adwaitaInk}, 0xFFF6F5F4},
    {"LXQt, Clearlooks", "lxqt-panel", {.panelTheme = "Clearlooks"}, 0xFFEDECEB},
    {"LXQt, KDE-Plasma", "lxqt-panel", {.panelTheme = "KDE-Plasma"}, 0xFFF0F0F0},
    {"LXQt, light", "lxqt-panel", {.panelTheme = "light"}, 0xFFC0C0C0},
    {"LXQt, Arch-Colors", "lxqt-panel", {.panelTheme = "Arch-Colors"}, 0xFF041B27},
    {"LXQt, Leech", "lxqt-panel", {.panelTheme = "Leech"}, 0xFF000000},
    {"LXQt, ambiance", "lxqt-panel", {.panelTheme = "ambiance"}, 0xFF515048},
    {"LXQt, silver", "lxqt-panel", {.panelTheme = "silver"}, 0xFFADADAD},
    {"LXQt, dark and half transparent", "lxqt-panel", {.panelTheme = "dark"}, 0xFF808080},
    {"Cinnamon", "xapp-sn-watcher", {.darkScheme = false}, 0xFF2F2F2F},
    {"waybar as it comes", "waybar", {}, 0xFF2980B9},
    {"waybar, its bar", "waybar", {.darkScheme = true}, 0xFF2B303B},
    {"i3bar", "", {}, 0xFF000000},
    {"a panel in the middle of everything", "unheard-of", {}, 0xFF777777},
};

StatusInk inkOn(const MeasuredPanel& panel) {
    return statusInk(trayHost(panel.host).panel, panel.clues);
}

TEST(PanelInk, CanBeReadOnEveryPanel) {
    for (const auto& panel : measuredPanels) {
        const auto ink = inkOn(panel);
        EXPECT_GE(contrast(ink.ink, ink.plate.value_or(panel.color)), readable) << panel.name;
        EXPECT_EQ(qAlpha(ink.plate.value_or(0xFF000000)), 255) << panel.name;
    }
}

// The contrast with their surroundings that so many pixels of the picture have at least, on that panel.
double contrastDrawn(const MeasuredPanel& panel, int side, int pixels) {
    const auto ink = inkOn(panel);
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(panel.color);
    QPainter painter(&picture);
    painter.drawImage(0, 0, compactIcon("battery.75percent", "-12W", ink, side));
    painter.end();
    std::vector<double> contrasts;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            contrasts.push_back(contrast(picture.pixel(x, y), ink.plate.value_or(panel.color)));
        }
    }
    std::sort(contrasts.rbegin(), contrasts.rend());
    return contrasts.at(static_cast<std::size_t>(pixels));
}

TEST(PanelInk, IsAsStrongInThePicturesThatPanelsShow) {
    for (const auto& panel : measuredPanels) {
        for (const int side : {16, 22, 24, 32}) {
            EXPECT_GE(contrastDrawn(panel, side, side * side / 10), readable) << panel.name << ", " << side;
        }
    }
}

TEST(PanelInk, NeedsAPlateOnlyWhereNobodyKnowsThePanel) {
    EXPECT_EQ(statusInk(PanelStyle::dark, {}), (StatusInk{lightInk, {}}));
    EXPECT_EQ(statusInk(PanelStyle::plasma, {.darkScheme = false}), (StatusInk{darkInk, {}}));
    EXPECT_EQ(statusInk(PanelStyle::plasma, {.darkScheme = true}), (StatusInk{lightInk, {}}));
    EXPECT_EQ(statusInk(PanelStyle::published, {.publishedInk = 0xFF123456}), (StatusInk{0xFF123456, {}}));
    for (const auto style :
         {PanelStyle::plasma, PanelStyle::lxqt, PanelStyle::published, PanelStyle::unknown}) {
        EXPECT_EQ(statusInk(style, {}), platedInk) << static_cast<int>(style);
    }
}

TEST(PanelInk, GoesByWhatThePanelItselfHasToDoWith) {
    const PanelClues misleading{.darkScheme = false, .publishedInk = 0xFF123456};
    EXPECT_EQ(statusInk(PanelStyle::dark, misleading), (StatusInk{lightInk, {}}));
    EXPECT_EQ(statusInk(PanelStyle::plasma, misleading), (StatusInk{darkInk, {}}));
    EXPECT_EQ(statusInk(PanelStyle::lxqt, misleading), platedInk);
    EXPECT_EQ(statusInk(PanelStyle::unknown, misleading), platedInk);
}

} // namespace
} // namespace quelby::app
