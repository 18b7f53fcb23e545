#include "history/energy/largest_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(LargestNames, AreAllWhereThereAreNotTooMany) {
    EXPECT_THAT(beyondLargest(2, {}, {}), IsEmpty());
    EXPECT_THAT(beyondLargest(2, {{"a", 1}}, {{"a", 2}, {"b", 1}}), IsEmpty());
}

TEST(LargestNames, CountWhatIsKnownAndWhatIsAddedTogether) {
    EXPECT_THAT(beyondLargest(2, {{"a", 3}, {"b", 1}}, {{"b", 3}, {"c", 3.5}}), UnorderedElementsAre("a"));
    EXPECT_THAT(beyondLargest(1, {{"a", 3}, {"b", 1}}, {{"b", 1}, {"c", 2.5}}),
                UnorderedElementsAre("b", "c"));
    EXPECT_THAT(beyondLargest(1, {{"a", 3}}, {{"b", 2.5}}), UnorderedElementsAre("b"));
    EXPECT_THAT(beyondLargest(1, {{"a", 2}}, {{"b", 2.5}}), UnorderedElementsAre("a"));
}

TEST(LargestNames, OfEqualOnesAreTheFirstByName) {
    EXPECT_THAT(beyondLargest(2, {{"d", 1}, {"b", 1}}, {{"a", 1}, {"c", 1}}), UnorderedElementsAre("c", "d"));
}

TEST(LargestNames, LeaveOutWhatIsNoApplication) {
    EXPECT_THAT(beyondLargest(1, {{"system", 0.1}, {"other", 0.1}, {"a", 1}}, {{"system", 0.1}}), IsEmpty());
}

} // namespace
} // namespace quelby
