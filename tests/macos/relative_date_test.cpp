#include "platform/relative_date.h"

#include <cstdlib>

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

TEST(RelativeDate, IsSpokenInTheLanguageThatTheUserPrefers) {
    fake::frameworks() = {};
    fake::frameworks().languages = {"de", "en"};
    static_cast<void>(relativeDate(0, 1));
    EXPECT_EQ(fake::frameworks().spokenLanguage, "de");
    fake::frameworks().languages.clear();
    static_cast<void>(relativeDate(0, 1));
    EXPECT_EQ(fake::frameworks().spokenLanguage, "the program's");
}

TEST(RelativeDate, IsNotSpokenInTheLanguageOfTheEnvironment) {
    fake::frameworks() = {};
    fake::frameworks().languages = {"ja"};
    ::setenv("LANG", "fr_FR.UTF-8", 1);
    static_cast<void>(relativeDate(0, 1));
    ::unsetenv("LANG");
    EXPECT_EQ(fake::frameworks().spokenLanguage, "ja");
}

TEST(RelativeDate, LeavesNoObjectBehind) {
    fake::frameworks() = {};
    EXPECT_EQ(fake::objectsLeftBy([] { static_cast<void>(relativeDate(0, 1)); }), 0);
}

} // namespace
} // namespace quelby
