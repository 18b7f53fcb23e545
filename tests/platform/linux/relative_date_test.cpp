#include "platform/relative_date.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/uloc.h>

#include "base/utf8.h"
#include "platform/linux/relative_date_phrase.h"

namespace quelby {
namespace {

constexpr double now = 1'700'000'000;
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
    return relativeDatePhrase(now + seconds, now, language);
}

// Every boundary, and the last second before it.
constexpr std::pair<double, const char*> boundaries[] = {{1, "1 second"},
                                                         {1.9, "1 second"},
                                                         {2, "2 seconds"},
                                                         {59.9, "59 seconds"},
                                                         {minute, "1 minute"},
                                                         {2 * minute - 1, "1 minute"},
                                                         {2 * minute, "2 minutes"},
                                                         {hour - 1, "59 minutes"},
                                                         {hour, "1 hour"},
                                                         {2 * hour - 1, "1 hour"},
                                                         {2 * hour, "2 hours"},
                                                         {day - 1, "23 hours"},
                                                         {day, "1 day"},
                                                         {2 * day - 1, "1 day"},
                                                         {2 * day, "2 days"},
                                                         {week - 1, "6 days"},
                                                         {week, "1 week"},
                                                         {13 * day, "1 week"},
                                                         {2 * week - 1, "1 week"},
                                                         {2 * week, "2 weeks"},
                                                         {3 * week - 1, "2 weeks"},
                                                         {25 * day, "3 weeks"},
                                                         {4 * week - 1, "3 weeks"},
                                                         {4 * week, "4 weeks"},
                                                         {month - 1, "4 weeks"},
                                                         {month, "1 month"},
                                                         {2 * month - 1, "1 month"},
                                                         {2 * month, "2 months"},
                                                         {12 * month - 1, "11 months"},
                                                         {year - 1, "11 months"},
                                                         {year, "1 year"},
                                                         {2 * year - 1, "1 year"},
                                                         {2 * year, "2 years"},
                                                         {100 * year, "100 years"}};

TEST(RelativeDate, CountsInTheLargestUnitThatFitsAndNeverTooMany) {
    for (const auto& [seconds, count] : boundaries) {
        EXPECT_EQ(inSeconds(seconds), std::string("in ") + count) << seconds;
        EXPECT_EQ(inSeconds(-seconds), std::string(count) + " ago") << seconds;
    }
}

TEST(RelativeDate, OfThePresentIsNow) {
    for (const double seconds : {0.0, 0.9, -0.9}) {
        EXPECT_EQ(inSeconds(seconds), "now") << seconds;
    }
}

TEST(RelativeDate, HasTheSameBoundariesInGerman) {
    const std::tuple<double, const char*, const char*> expected[] = {
        {59.9, "in 59 Sekunden", "vor 59 Sekunden"},
        {minute, "in 1 Minute", "vor 1 Minute"},
        {hour - 1, "in 59 Minuten", "vor 59 Minuten"},
        {hour, "in 1 Stunde", "vor 1 Stunde"},
        {day - 1, "in 23 Stunden", "vor 23 Stunden"},
        {day, "in 1 Tag", "vor 1 Tag"},
        {week - 1, "in 6 Tagen", "vor 6 Tagen"},
        {week, "in 1 Woche", "vor 1 Woche"},
        {13 * day, "in 1 Woche", "vor 1 Woche"},
        {2 * week, "in 2 Wochen", "vor 2 Wochen"},
        {25 * day, "in 3 Wochen", "vor 3 Wochen"},
        {month - 1, "in 4 Wochen", "vor 4 Wochen"},
        {month, "in 1 Monat", "vor 1 Monat"},
        {year - 1, "in 11 Monaten", "vor 11 Monaten"},
        {year, "in 1 Jahr", "vor 1 Jahr"},
        {2 * year, "in 2 Jahren", "vor 2 Jahren"}};
    for (const auto& [seconds, coming, past] : expected) {
        EXPECT_EQ(inSeconds(seconds, "de"), coming);
        EXPECT_EQ(inSeconds(-seconds, "de"), past);
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
    EXPECT_EQ(relativeDatePhrase(notANumber, now, "en"), "now");
    EXPECT_EQ(relativeDatePhrase(now, notANumber, "en"), "now");
}

TEST(RelativeDate, OfAnAbsurdDateIsStillOneLine) {
    constexpr auto infinity = std::numeric_limits<double>::infinity();
    constexpr auto notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const double date : {1e15, 1e300, -1e300, infinity, -infinity, notANumber}) {
        for (const char* language : {"en", "de", "fr", "ar"}) {
            const auto phrase = relativeDatePhrase(date, now, language);
            EXPECT_NE(phrase, "") << date << ' ' << language;
            EXPECT_TRUE(isUtf8(phrase)) << date << ' ' << language;
        }
    }
}

TEST(RelativeDate, OfAnAbsurdDateStillTellsPastFromFuture) {
    constexpr auto infinity = std::numeric_limits<double>::infinity();
    for (const double date : {1e15, 1e300, infinity}) {
        EXPECT_THAT(relativeDatePhrase(date, now, "en"), testing::MatchesRegex("in [0-9,]+ years")) << date;
        EXPECT_THAT(relativeDatePhrase(-date, now, "en"), testing::MatchesRegex("[0-9,]+ years ago")) << date;
    }
}

TEST(UserLanguage, IsThatOfTheEnvironment) {
    for (const char* environment : {"de_AT", "pt_BR"}) {
        const EnvironmentLanguage language(environment);
        EXPECT_EQ(userLanguage(), environment);
    }
}

TEST(RelativeDate, OfTheSystemIsInTheLanguageOfTheEnvironment) {
    const EnvironmentLanguage language("de_DE");
    EXPECT_EQ(relativeDate(now - 3 * day, now), "vor 3 Tagen");
}

} // namespace
} // namespace quelby
