#include "cli/arguments/nearest_word.h"

#include <gtest/gtest.h>

namespace quelby::cli {
namespace {

TEST(NearestWord, CountsWhatOneHasToChange) {
    EXPECT_EQ(distance("", ""), 0U);
    EXPECT_EQ(distance("", "word"), 4U);
    EXPECT_EQ(distance("word", ""), 4U);
    EXPECT_EQ(distance("word", "word"), 0U);
    EXPECT_EQ(distance("wrd", "word"), 1U);
    EXPECT_EQ(distance("woord", "word"), 1U);
    EXPECT_EQ(distance("ward", "word"), 1U);
    EXPECT_EQ(distance("wrod", "word"), 1U) << "two neighbours";
    EXPECT_EQ(distance("dorw", "word"), 2U) << "which are none";
    EXPECT_EQ(distance("kitten", "sitting"), 3U);
}

TEST(NearestWord, IsTheOneAtTheLeastDistance) {
    const std::vector<std::string_view> words{"status", "watch", "limit", "calibration", "history"};
    EXPECT_EQ(nearestWord("statsu", words), "status");
    EXPECT_EQ(nearestWord("Limit", words), "limit");
    EXPECT_EQ(nearestWord("hstory", words), "history");
    EXPECT_EQ(nearestWord("limit", words), "limit");
}

TEST(NearestWord, IsTheFirstOfSeveral) {
    EXPECT_EQ(nearestWord("bat", {"cat", "hat"}), "cat");
    EXPECT_EQ(nearestWord("", {"cat", "at"}), "at");
}

TEST(NearestWord, IsOneThatBeginsLikeIt) {
    EXPECT_EQ(nearestWord("cal", {"all", "calibration"}), "calibration");
    EXPECT_EQ(nearestWord("calm", {"all", "calibration"}), "all");
}

} // namespace
} // namespace quelby::cli
