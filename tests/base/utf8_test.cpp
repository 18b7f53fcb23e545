#include "base/utf8.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

using namespace std::string_literals;

TEST(IsUtf8, AcceptsWellFormedTextOfEveryLength) {
    for (const auto& text : {""s, "plain"s, "Größe"s, "電池"s, "🔋"s, "\xF4\x8F\xBF\xBF"s, "a\0b"s}) {
        EXPECT_TRUE(isUtf8(text)) << text;
    }
}

TEST(IsUtf8, RefusesEveryKindOfMalformedText) {
    const std::string malformed[] = {
        "\x80",             // a continuation without a lead
        "\xC3",             // cut off
        "\xE9\x9B",         // cut off
        "\xC3(",            // no continuation
        "\xC0\xAF",         // overlong
        "\xE0\x80\xAF",     // overlong
        "\xF0\x80\x80\xAF", // overlong
        "\xED\xA0\x80",     // a surrogate
        "\xF4\x90\x80\x80", // above U+10FFFF
        "\xFF",
    };
    for (const auto& text : malformed) {
        EXPECT_FALSE(isUtf8(text));
        EXPECT_FALSE(isUtf8("before " + text + " after"));
    }
}

TEST(IsUtf8, LooksAtEveryPlaceOfALongText) {
    for (std::size_t place = 0; place < 40; ++place) {
        std::string text(40, 'x');
        EXPECT_TRUE(isUtf8(text));
        text[place] = '\xFF';
        EXPECT_FALSE(isUtf8(text)) << place;
        text.replace(place, 1, "\u00FC");
        EXPECT_TRUE(isUtf8(text)) << place;
        EXPECT_FALSE(isUtf8(text.substr(0, place + 1))) << place;
    }
}

TEST(Printable, KeepsTextAndReplacesControlCharacters) {
    EXPECT_EQ(printable("Web Content 電池"), "Web Content 電池");
    EXPECT_EQ(printable("a\nb\tc\x1B[2Jd\x7F"), "a?b?c?[2Jd?");
    EXPECT_EQ(printable("\xC2\x9B"
                        "2J"),
              "?2J"); // the one-character form of ESC [
    EXPECT_EQ(printable("abc\u202Edcba"), "abc?dcba");
}

TEST(Printable, ReplacesEachByteThatIsNotUtf8) {
    EXPECT_EQ(printable("a\xFF\xC3z"), "a??z");
}

} // namespace
} // namespace quelby
