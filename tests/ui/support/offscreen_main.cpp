// The entry of test programs that draw.
#include <gmock/gmock.h>

#include "ui/support/offscreen.h"

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    const quelby::Offscreen offscreen;
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
