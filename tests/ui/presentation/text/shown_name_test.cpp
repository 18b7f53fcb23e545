#include <gtest/gtest.h>

#include "ui/presentation/cards/process_card.h"
#include "ui/presentation/text/characters.h"

namespace quelby {
namespace {

using namespace std::string_literals;

std::string repeated(const std::string& character, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += character;
    }
    return text;
}

// What a person counts as one character, in one to eleven code points.
const std::string characters[] = {
    "a",
    "ü",
    "u\u0308",                                                    // the same, with a combining mark
    "e\u0323\u0302",                                              // two marks
    "電",                                                         //
    "\U0001F50B",                                                 // a battery
    "\u2764\uFE0F",                                               // a heart and its variation
    "\U0001F44D\U0001F3FD",                                       // a thumb and its skin
    "\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466", // a family
    "\U0001F1E9\U0001F1EA",                                       // a flag of two letters
    "\U0001F3F4\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F", // a flag of tags
    "\u1112\u1161\u11AB",                                                     // a Korean syllable in letters
};

TEST(ShownName, OfTwentyCharactersIsWhole) {
    for (const auto& character : characters) {
        for (const int count : {1, 19, 20}) {
            const auto name = repeated(character, count);
            EXPECT_EQ(shownName(name), name);
        }
    }
}

TEST(ShownName, OfMoreIsCutToNineteenAndATilde) {
    for (const auto& character : characters) {
        for (const int count : {21, 22, 300}) {
            EXPECT_EQ(shownName(repeated(character, count)), repeated(character, 19) + "~") << count;
        }
    }
}

TEST(ShownName, IsCutWhereItsOwnTwentyFirstCharacterBegins) {
    EXPECT_EQ(shownName("abcdefghijklmnopqrst"), "abcdefghijklmnopqrst");
    EXPECT_EQ(shownName("abcdefghijklmnopqrstu"), "abcdefghijklmnopqrs~");
    EXPECT_EQ(shownName("abcdefghijklmnopqrst\u0308"), "abcdefghijklmnopqrst\u0308");
    EXPECT_EQ(shownName("abcdefghijklmnopqrs\u0308tu"), "abcdefghijklmnopqrs\u0308~");
}

TEST(ShownName, OfNothingIsNothing) {
    EXPECT_EQ(shownName(""), "");
}

TEST(ShownName, KeepsBlanksAndTheTildesOfOthers) {
    EXPECT_EQ(shownName("Web Content"), "Web Content");
    EXPECT_EQ(shownName(" ~a~ "), " ~a~ ");
}

TEST(ShownName, HasAQuestionMarkForEachControlCharacter) {
    EXPECT_EQ(shownName("a\r\nb\tc\x1B[2Jd\x7F"s), "a??b?c?[2Jd?");
    EXPECT_EQ(shownName("a\0b"s), "a?b");
    EXPECT_EQ(shownName("abc\u202Edcba"), "abc?dcba");
    EXPECT_EQ(shownName("a\u0085b\u2028c"), "a?b?c");
}

TEST(ShownName, HasAQuestionMarkForEachByteThatIsNotUtf8) {
    EXPECT_EQ(shownName("a\xFF\xC3z"), "a??z");
    EXPECT_EQ(shownName("\xED\xA0\x80"), "???");
    EXPECT_EQ(shownName("cut \xE9\x9B"), "cut ??");
}

TEST(ShownName, CountsQuestionMarksAsCharacters) {
    EXPECT_EQ(shownName(repeated("\n", 20)), repeated("?", 20));
    EXPECT_EQ(shownName(repeated("\r\n", 10)), repeated("?", 20));
    EXPECT_EQ(shownName(repeated("\n", 21)), repeated("?", 19) + "~");
    EXPECT_EQ(shownName(repeated("\xFF", 20)), repeated("?", 20));
    EXPECT_EQ(shownName(repeated("\xFF", 21)), repeated("?", 19) + "~");
}

TEST(Beginning, IsTheWholeOfAShorterText) {
    EXPECT_EQ(beginning("", 0), "");
    EXPECT_EQ(beginning("", 3), "");
    EXPECT_EQ(beginning("電池", 2), "電池");
    EXPECT_EQ(beginning("電池", 5), "電池");
}

TEST(Beginning, EndsAfterAWholeCharacter) {
    for (const auto& character : characters) {
        const auto text = repeated(character, 5);
        for (const std::size_t count : {0U, 1U, 4U, 5U, 6U}) {
            EXPECT_EQ(beginning(text, count), text.substr(0, count * character.size()));
        }
    }
}

} // namespace
} // namespace quelby
