#include "platform/local_day.h"

#include <gtest/gtest.h>

#include "macos/doubles/frameworks.h"

namespace quelby {
namespace {

TEST(StartOfLocalDay, IsThatOfTheUsersCalendar) {
    fake::frameworks() = {};
    fake::frameworks().startOfDay = [](double moment) { return moment - 5400; };
    EXPECT_EQ(startOfLocalDay(1'700'000'000), 1'699'994'600);
}

TEST(StartOfLocalDay, LeavesNoObjectBehind) {
    EXPECT_EQ(fake::objectsLeftBy([] { static_cast<void>(startOfLocalDay(1'700'000'000)); }), 0);
}

} // namespace
} // namespace quelby
