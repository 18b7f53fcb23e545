#include "app/linux/display.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

bool everyPlugin(std::string_view /*name*/) {
    return true;
}

std::string chosen(const Displays& displays) {
    const auto result = chooseDisplay(displays);
    return result ? *result : "problem: " + result.error().sentence;
}

TEST(Display, IsOfX11WhereAnXServerAnswers) {
    EXPECT_EQ(chosen({.x11 = true, .hasPlugin = everyPlugin}), "xcb");
    EXPECT_EQ(chosen({.x11 = true, .wayland = {.answers = true}, .hasPlugin = everyPlugin}), "xcb");
}

TEST(Display, IsOfWaylandWhereThereIsNoXServer) {
    EXPECT_EQ(chosen({.wayland = {.answers = true}, .hasPlugin = everyPlugin}), "wayland");
}

TEST(Display, IsOfWaylandWhereTheCompositorHasWindowsOfTheDesktop) {
    const WaylandOffer offer{.answers = true, .desktopWindows = true};
    EXPECT_EQ(chosen({.x11 = true, .wayland = offer, .hasPlugin = everyPlugin}), "wayland");
    const auto xOnly = [](std::string_view plugin) { return plugin == "xcb"; };
    EXPECT_EQ(chosen({.x11 = true, .wayland = offer, .hasPlugin = xOnly}), "xcb");
}

TEST(Display, IsThatWhosePluginIsInstalled) {
    const auto only = [](std::string name) {
        return [name](std::string_view plugin) { return plugin == name; };
    };
    EXPECT_EQ(chosen({.x11 = true, .wayland = {.answers = true}, .hasPlugin = only("wayland")}), "wayland");
    EXPECT_EQ(chosen({.x11 = true, .wayland = {.answers = true}, .hasPlugin = only("xcb")}), "xcb");
    EXPECT_EQ(chosen({.wayland = {.answers = true}, .hasPlugin = only("xcb")}),
              "problem: windows on Wayland need the package qt6-wayland; --headless works without a display");
}

TEST(Display, IsNoneWhereNothingAnswers) {
    EXPECT_EQ(chosen({.hasPlugin = everyPlugin}),
              "problem: there is no display; --headless works without one");
}

TEST(Display, IsTheOneThatIsWantedWhereItIsThere) {
    EXPECT_EQ(chosen({.wanted = "offscreen", .hasPlugin = everyPlugin}), "offscreen");
    EXPECT_EQ(
        chosen({.wanted = "wayland", .x11 = true, .wayland = {.answers = true}, .hasPlugin = everyPlugin}),
        "wayland");
    EXPECT_EQ(chosen({.wanted = "vnc:size=800x600", .hasPlugin = everyPlugin}), "vnc:size=800x600");
}

TEST(Display, IsTheFirstOfSeveralThatIsThere) {
    EXPECT_EQ(chosen({.wanted = "wayland;xcb", .x11 = true, .hasPlugin = everyPlugin}), "wayland;xcb");
}

TEST(Display, ThatIsWantedInVainIsAProblem) {
    for (const auto* const wanted : {"xcb", "wayland", "wayland-egl", "wayland;xcb", ";"}) {
        EXPECT_TRUE(chosen({.wanted = wanted, .hasPlugin = everyPlugin}).starts_with("problem: ")) << wanted;
    }
    const auto none = [](std::string_view) { return false; };
    EXPECT_TRUE(chosen({.wanted = "xcb", .x11 = true, .hasPlugin = none}).starts_with("problem: "));
}

} // namespace
} // namespace quelby::app
