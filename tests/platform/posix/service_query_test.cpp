#include "platform/posix/service_query.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(ServiceQuery, AsksTheManagerOfEachSystemAboutTheHelper) {
    EXPECT_EQ(launchdQuery(), (ServiceQuery{"/bin/launchctl", {"list", "com.quelby.limiter"}}));
    EXPECT_EQ(systemdQuery(),
              (ServiceQuery{"systemctl", {"is-active", "--quiet", "com.quelby.limiter.service"}}));
}

} // namespace
} // namespace quelby
