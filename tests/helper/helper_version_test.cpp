#include "helper/helper_version.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(HelperVersion, IsWhatTheHelperSays) {
    EXPECT_EQ(helperVersion(R"({"version":"1.2.3","batteries":[{"name":"BAT0"}]})"), "1.2.3");
}

TEST(HelperVersion, IsNotKnownOfAHelperThatDoesNotSayIt) {
    EXPECT_EQ(helperVersion(std::nullopt), std::nullopt);
    EXPECT_EQ(helperVersion("{}"), std::nullopt);
    EXPECT_EQ(helperVersion(R"({"version":1})"), std::nullopt);
    EXPECT_EQ(helperVersion(R"({"version":"1.2.3")"), std::nullopt);
}

TEST(HelperVersion, BelongsToAProgramOfTheSameOne) {
    EXPECT_TRUE(isHelperOf(R"({"version":"1.0.0"})", "1.0.0"));
    EXPECT_FALSE(isHelperOf(R"({"version":"1.0.1"})", "1.0.0")) << "newer";
    EXPECT_FALSE(isHelperOf(R"({"version":"0.9.0"})", "1.0.0")) << "older";
    EXPECT_FALSE(isHelperOf(R"({"explanation":"Charging stops at 80%."})", "1.0.0"));
    EXPECT_FALSE(isHelperOf(std::nullopt, "1.0.0"));
}

} // namespace
} // namespace quelby
