#include "platform/macos/plain_numbers.h"

#include <gmock/gmock.h>

namespace quelby {
namespace {

using testing::UnorderedElementsAre;

TEST(WithPlainNumbers, SetsTheLanguageOfNumbersAlone) {
    EXPECT_THAT(withPlainNumbers({"HOME=/home", "LANG=de_DE.UTF-8"}),
                UnorderedElementsAre("HOME=/home", "LANG=de_DE.UTF-8", "LC_NUMERIC=C"));
}

TEST(WithPlainNumbers, ReplacesTheLanguageOfNumbers) {
    EXPECT_THAT(withPlainNumbers({"LC_NUMERIC=de_DE.UTF-8"}), UnorderedElementsAre("LC_NUMERIC=C"));
}

TEST(WithPlainNumbers, TakesTheWordFromTheVariableThatGoesBeforeAll) {
    EXPECT_THAT(withPlainNumbers({"LC_ALL=de_DE.UTF-8", "LC_CTYPE=C"}),
                UnorderedElementsAre("LC_NUMERIC=C", "LC_CTYPE=de_DE.UTF-8"));
}

TEST(WithPlainNumbers, TakesAnEmptyVariableForAnAbsentOne) {
    EXPECT_THAT(withPlainNumbers({"LC_ALL=", "LC_CTYPE=de_DE.UTF-8"}),
                UnorderedElementsAre("LC_NUMERIC=C", "LC_CTYPE=de_DE.UTF-8"));
}

TEST(WithPlainNumbers, LeavesSimilarNamesAlone) {
    EXPECT_THAT(withPlainNumbers({"LC_ALLOWED=1", "XLC_ALL=2"}),
                UnorderedElementsAre("LC_ALLOWED=1", "XLC_ALL=2", "LC_NUMERIC=C"));
}

} // namespace
} // namespace quelby
