#include <cstdio>
#include <cstdlib>

#include <gmock/gmock.h>

// GNUstep, which reads the variable before the program begins, would keep the user's defaults in the home.
int main(int argc, char** argv) {
    if (std::getenv("GNUSTEP_CONFIG_FILE") == nullptr) {
        std::fputs("GNUSTEP_CONFIG_FILE must name a configuration that is not the user's own.\n", stderr);
        return 1;
    }
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
