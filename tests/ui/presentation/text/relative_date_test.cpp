#include "ui/presentation/text/relative_date.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/uloc.h>

#include "base/utf8.h"

namespace quelby {
namespace {

constexpr Date now = 1'700'000'000;
constexpr double minute = 60;
constexpr double hour = 60 * minute;
constexpr double day = 24 * hour;
constexpr double week = 7 * day;
constexpr double month = 30 * day;
constexpr double year = 365 * day;

// What the library takes for the environment's language, until it goes.
class EnvironmentLanguage {
public:
    explicit EnvironmentLanguage(const char* language) { set(language); }

    EnvironmentLanguage(const EnvironmentLanguage&) = delete;
    EnvironmentLanguage& operator=(const EnvironmentLanguage&) = delete;

    ~EnvironmentLanguage() { set(before_.c_str()); }

private:
    static void set(const char* language) {
        UErrorCode status = U_ZERO_ERROR;
        uloc_setDefault(language, &status);
        EXPECT_TRUE(U_SUCCESS(status));
    }

    std::string before_ = uloc_getDefault();
};

std::string inSeconds(double seconds, const char* language = "en") {
    return relativeDate(now + seconds, now, language);
}

TEST(RelativeDate, CountsInTheLargestUnitThatFits) {
    const std::pair<double, const char*> expected[] = {{0.6, "1 second"},
                                                       {1, "1 second"},
                                                       {1.4, "1 second"},
                                                       {2, "2 seconds"},
                                                       {59.4, "59 seconds"},
                                                       {59.6, "1 minute"},
                                                       {minute, "1 minute"},
                                                       {1.4 * minute, "1 minute"},
                                                       {1.6 * minute, "2 minutes"},
                                                       {59.4 * minute, "59 minutes"},
                                                       {59.6 * minute, "1 hour"},
                                                       {hour, "1 hour"},
                                                       {1.4 * hour, "1 hour"},
                                                       {1.6 * hour, "2 hours"},
                                                       {23.4 * hour, "23 hours"},
                                                       {23.6 * hour, "1 day"},
                                                       {day, "1 day"},
                                                       {1.4 * day, "1 day"},
                                                       {1.6 * day, "2 days"},
                                                       {3 * day, "3 days"},
                                                       {6.4 * day, "6 days"},
                                                       {6.6 * day, "1 week"},
                                                       {week, "1 week"},
                                                       {1.4 * week, "1 week"},
                                                       {1.6 * week, "2 weeks"},
                                                       {2 * week, "2 weeks"},
                                                       {3.4 * week, "3 weeks"},
                                                       {3.6 * week, "1 month"},
                                                       {month, "1 month"},
                                                       {1.4 * month, "1 month"},
                                                       {1.6 * month, "2 months"},
                                                       {2 * month, "2 months"},
                                                       {11.4 * month, "11 months"},
                                                       {11.6 * month, "1 year"},
                                                       {year, "1 year"},
                                                       {1.4 * year, "1 year"},
                                                       {547.4 * day, "1 year"},
                                                       {547.6 * day, "2 years"},
                                                       {1.6 * year, "2 years"},
                                                       {100 * year, "100 years"}};
    for (const auto& [seconds, count] : expected) {
        EXPECT_EQ(inSeconds(seconds), std::string("in ") + count) << seconds;
        EXPECT_EQ(inSeconds(-seconds), std::string(count) + " ago") << seconds;
    }
}

TEST(RelativeDate, OfThePresentIsNow) {
    for (const double seconds : {0.0, 0.4, -0.4}) {
        EXPECT_EQ(inSeconds(seconds), "now") << seconds;
    }
}

TEST(RelativeDate, IsSpokenInTheUsersLanguage) {
    struct Case {
        const char* language;
        double days;
        const char* phrase;
    };

    for (const auto& [language, days, phrase] :
         {Case{"de", -3, "vor 3 Tagen"}, Case{"de", -1, "vor 1 Tag"}, Case{"de", 14, "in 2 Wochen"},
          Case{"de", 0, "jetzt"}, Case{"fr", -3, "il y a 3 jours"}, Case{"fr", -1, "il y a 1 jour"},
          Case{"fr", 14, "dans 2 semaines"}, Case{"fr", 0, "maintenant"}, Case{"ar", -1, "قبل يوم واحد"},
          Case{"ar", -2, "قبل يومين"}, Case{"ar", 14, "خلال أسبوعين"}, Case{"ar", 0, "الآن"},
          Case{"de_AT", -3, "vor 3 Tagen"}, Case{"pt_BR", -3, "há 3 dias"}}) {
        EXPECT_EQ(inSeconds(days * day, language), phrase) << language << ' ' << days;
    }
}

// One form for three to ten, another for eleven and more.
TEST(RelativeDate, FollowsThePluralsOfTheLanguage) {
    EXPECT_THAT(inSeconds(3 * hour, "ar"), testing::HasSubstr("ساعات"));
    EXPECT_THAT(inSeconds(11 * hour, "ar"), testing::HasSubstr("ساعة"));
}

// The library falls back on the environment's language, which may be any.
TEST(RelativeDate, IsEnglishInALanguageWithoutPhrases) {
    for (const char* environment : {"de_DE", "csb_PL", "en_US"}) {
        const EnvironmentLanguage language(environment);
        for (const char* unknown : {"csb_PL", "xx", "", "not a language", "C"}) {
            SCOPED_TRACE(testing::Message() << '"' << unknown << "\" in " << environment);
            EXPECT_EQ(inSeconds(-3 * day, unknown), "3 days ago");
            EXPECT_EQ(inSeconds(2 * week, unknown), "in 2 weeks");
            EXPECT_EQ(inSeconds(0, unknown), "now");
        }
    }
}

TEST(RelativeDate, OfADateThatIsNoNumberIsNow) {
    constexpr auto notANumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(relativeDate(notANumber, now, "en"), "now");
    EXPECT_EQ(relativeDate(now, notANumber, "en"), "now");
}

TEST(RelativeDate, OfAnAbsurdDateIsStillOneLine) {
    constexpr auto infinity = std::numeric_limits<double>::infinity();
    constexpr auto notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const double date : {1e15, 1e300, -1e300, infinity, -infinity, notANumber}) {
        for (const char* language : {"en", "de", "fr", "ar"}) {
            const auto phrase = relativeDate(date, now, language);
            EXPECT_NE(phrase, "") << date << ' ' << language;
            EXPECT_TRUE(isUtf8(phrase)) << date << ' ' << language;
        }
    }
}

TEST(RelativeDate, OfAnAbsurdDateStillTellsPastFromFuture) {
    constexpr auto infinity = std::numeric_limits<double>::infinity();
    for (const double date : {1e15, 1e300, infinity}) {
        EXPECT_THAT(relativeDate(date, now, "en"), testing::MatchesRegex("in [0-9,]+ years")) << date;
        EXPECT_THAT(relativeDate(-date, now, "en"), testing::MatchesRegex("[0-9,]+ years ago")) << date;
    }
}

TEST(UserLanguage, IsThatOfTheEnvironment) {
    for (const char* environment : {"de_AT", "pt_BR"}) {
        const EnvironmentLanguage language(environment);
        EXPECT_EQ(userLanguage(), environment);
    }
}

} // namespace
} // namespace quelby
