#include "platform/relative_date.h"

#include <gtest/gtest.h>

#include "macos/doubles/frameworks.h"

namespace quelby {
namespace {

TEST(RelativeDate, IsWhatTheSystemsFormatterMakesOfIt) {
    fake::frameworks() = {};
    fake::frameworks().spokenDate = [](double date, double now) {
        return date == 1'700'000'000 && now == 1'700'086'400 ? "vor einem Tag — gestern" : "swapped";
    };
    EXPECT_EQ(relativeDate(1'700'000'000, 1'700'086'400), "vor einem Tag — gestern");
}

TEST(RelativeDate, LeavesNoObjectBehind) {
    fake::frameworks() = {};
    EXPECT_EQ(fake::objectsLeftBy([] { static_cast<void>(relativeDate(0, 1)); }), 0);
}

} // namespace
} // namespace quelby
