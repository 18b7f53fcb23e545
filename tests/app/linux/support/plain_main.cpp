// The entry of test programs that start other programs: an event loop, and nothing of the session in which
// the test itself runs.
#include <QCoreApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    for (const auto* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_CURRENT_DESKTOP",
                                   "XDG_SESSION_TYPE", "XDG_ACTIVATION_TOKEN"}) {
        qunsetenv(name);
    }
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
