// What the built program says where there is nothing to show itself on.

#include <gmock/gmock.h>

#include "app/linux/support/tray_program.h"

namespace quelby {
namespace {

using testing::IsEmpty;

TEST(TrayProgramWithoutADisplay, SaysSoAndEnds) {
    const TemporaryFolder folder;
    auto environment = plainEnvironment();
    for (const auto* const display : {"", ":60000", "nonsense"}) {
        environment["DISPLAY"] = display;
        const auto end = runProgram({QUELBY_BINARY_DIR "/quelby", "--data-dir", folder.path()}, environment);
        EXPECT_EQ(end.exitStatus, 1) << display;
        EXPECT_EQ(end.errors, "quelby: there is no display; --headless works without one\n");
        EXPECT_THAT(end.output, IsEmpty());
    }
}

TEST(TrayProgramWithoutADisplay, DoesNotTrustTheNameOfAWaylandDisplay) {
    const TemporaryFolder folder;
    auto environment = plainEnvironment();
    environment["DISPLAY"] = "";
    environment["XDG_RUNTIME_DIR"] = folder.path();
    environment["WAYLAND_DISPLAY"] = "wayland-7";
    const auto end = runProgram({QUELBY_BINARY_DIR "/quelby", "--data-dir", folder.path()}, environment);
    EXPECT_EQ(end.exitStatus, 1);
    EXPECT_EQ(end.errors, "quelby: there is no display; --headless works without one\n");
}

TEST(TrayProgramWithoutADisplay, SaysWhatTheVariableOfQtAsksInVain) {
    const TemporaryFolder folder;
    auto environment = plainEnvironment();
    environment["DISPLAY"] = "";
    for (const auto* const platform : {"xcb", "wayland", "wayland;xcb", "nonsense"}) {
        environment["QT_QPA_PLATFORM"] = platform;
        const auto end = runProgram({QUELBY_BINARY_DIR "/quelby", "--data-dir", folder.path()}, environment);
        EXPECT_EQ(end.exitStatus, 1) << platform;
        EXPECT_EQ(end.errors, "quelby: the display that QT_QPA_PLATFORM names is not there; --headless works "
                              "without one\n");
    }
}

} // namespace
} // namespace quelby
