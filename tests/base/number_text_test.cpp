#include "base/number_text.h"

#include <clocale>
#include <string>

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(DecimalNumber, AcceptsWhatAListerPrints) {
    EXPECT_EQ(decimalNumber("12.5"), 12.5);
    EXPECT_EQ(decimalNumber("0"), 0.0);
    EXPECT_EQ(decimalNumber("-3.25"), -3.25);
    EXPECT_EQ(decimalNumber("+1.5"), 1.5);
    EXPECT_EQ(decimalNumber("1e2"), 100.0);
    EXPECT_EQ(decimalNumber(".5"), 0.5);
    EXPECT_EQ(decimalNumber("5."), 5.0);
}

TEST(DecimalNumber, IsTheSameTheShortWayAndTheLong) {
    for (const std::size_t places : {0U, 1U, 2U, 6U}) {
        for (std::uint32_t number = 0; number < 10'000'000; number += 997) {
            auto text = std::to_string(number);
            text.insert(0, text.size() > places ? 0 : places + 1 - text.size(), '0');
            text.insert(text.size() - places, places > 0 ? "." : "");
            ASSERT_EQ(decimalNumber(text), decimalNumber(text + "e0")) << text;
        }
    }
}

TEST(DecimalNumber, RefusesWhatIsNotWhollyANumber) {
    for (const auto* text : {"", " ", "1.2.3", "1..2", "..", "abc", "12.5x", "1 2", " 1", "1\n", "0x10",
                             "12,5", "+-1", "++1", "-", "+", "."}) {
        EXPECT_EQ(decimalNumber(text), std::nullopt) << '"' << text << '"';
    }
}

TEST(DecimalNumber, RefusesWhatIsNotFinite) {
    for (const auto* text : {"nan", "NaN", "inf", "-inf", "infinity", "1e999", "-1e999"}) {
        EXPECT_EQ(decimalNumber(text), std::nullopt) << text;
    }
}

TEST(DecimalNumber, DoesNotFollowTheLocale) {
    const char* const german = std::setlocale(LC_ALL, "de_DE.UTF-8");
    EXPECT_EQ(decimalNumber("12.5"), 12.5);
    EXPECT_EQ(decimalNumber("12,5"), std::nullopt);
    std::setlocale(LC_ALL, "C");
    static_cast<void>(german); // where the locale is not installed, the test still holds
}

TEST(WholeNumber, AcceptsEveryIntegerOf64Bits) {
    EXPECT_EQ(wholeNumber("0"), 0);
    EXPECT_EQ(wholeNumber("+7"), 7);
    EXPECT_EQ(wholeNumber("-9223372036854775808"), INT64_MIN);
    EXPECT_EQ(wholeNumber("9223372036854775807"), INT64_MAX);
}

TEST(WholeNumber, RefusesEverythingElse) {
    for (const auto* text :
         {"", "1.0", "1 ", "0x1", "9223372036854775808", "18446744073709551615", "+-1", "+", "one"}) {
        EXPECT_EQ(wholeNumber(text), std::nullopt) << '"' << text << '"';
    }
}

TEST(WithoutBlanks, RemovesBlanksAndTabsAtBothEndsOnly) {
    EXPECT_EQ(withoutBlanks(" \t a b \t"), "a b");
    EXPECT_EQ(withoutBlanks("\n a \r"), "\n a \r");
    EXPECT_EQ(withoutBlanks(" \t "), "");
    EXPECT_EQ(withoutBlanks(""), "");
}

} // namespace
} // namespace quelby
