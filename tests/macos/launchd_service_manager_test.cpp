#include "platform/macos/launchd_service_manager.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

bool isLoadedWhere(const std::string& commands) {
    return LaunchdServiceManager({"/bin/sh", {"-c", commands}}).isHelperLoaded();
}

TEST(LaunchdServiceManager, TakesTheExitStatusForTheAnswer) {
    EXPECT_TRUE(isLoadedWhere("exit 0"));
    EXPECT_FALSE(isLoadedWhere("exit 113"));
    EXPECT_FALSE(isLoadedWhere("kill -KILL $$"));
}

TEST(LaunchdServiceManager, DoesNotReadTheOutput) {
    EXPECT_TRUE(isLoadedWhere("echo Could not find service"));
}

TEST(LaunchdServiceManager, SaysNoWhereNobodyCanBeAsked) {
    EXPECT_FALSE(LaunchdServiceManager({"/nonexistent/launchctl", {}}).isHelperLoaded());
}

} // namespace
} // namespace quelby
