#include "platform/macos/processor_count.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace quelby {
namespace {

TEST(ConfiguredProcessors, CountThoseThatSleepAsWell) {
    EXPECT_EQ(configuredProcessors(), ::sysconf(_SC_NPROCESSORS_CONF));
}

} // namespace
} // namespace quelby
