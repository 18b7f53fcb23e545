#include "platform/interface_font.h"

#include <gtest/gtest.h>

#include "macos/doubles/app_kit.h"
#include "macos/doubles/frameworks.h"

namespace quelby {
namespace {

TEST(InterfaceFont, IsTheSystems) {
    fake::startAnew();
    EXPECT_EQ(interfaceFontFamily(), ".AppleSystemUIFont");
    fake::appKit().fontFamily = "Something Else";
    EXPECT_EQ(interfaceFontFamily(), "Something Else");
}

TEST(InterfaceFont, LeavesNoObjectBehind) {
    EXPECT_EQ(fake::objectsLeftBy([] { static_cast<void>(interfaceFontFamily()); }), 0);
}

} // namespace
} // namespace quelby
