#include "helper/daemon_config.h"

#include <clocale>
#include <limits>

#include <gtest/gtest.h>

#include "helper/json_record.h"
#include "record_texts.h"

namespace quelby {
namespace {

TEST(DaemonConfig, IsDecodedFromItsFiveKeys) {
    EXPECT_EQ(decodeDaemonConfig(configText), configOfText);
}

TEST(DaemonConfig, IsDecodedInAnyOrderAndBesideOtherKeys) {
    EXPECT_EQ(decodeDaemonConfig(R"({ "lastCalibrationTimestamp" : 1700000000.25, "later": [{"deep": null}],
                                      "calibrationIntervalDays" : 14, "calibrationEnabled" : true,
                                      "chargeLimitPercent" : 85, "chargeLimitEnabled" : true })"),
              configOfText);
}

TEST(DaemonConfig, NeedsEachOfItsKeys) {
    for (const auto* key : {"chargeLimitEnabled", "chargeLimitPercent", "calibrationEnabled",
                            "calibrationIntervalDays", "lastCalibrationTimestamp"}) {
        EXPECT_EQ(decodeDaemonConfig(with(configText, key, "another")), std::nullopt) << key;
    }
}

TEST(DaemonConfig, IsRefusedAsAWholeForOneValueOfAnotherType) {
    for (const auto* part : {"true", "85", "14", "1700000000.25"}) {
        for (const auto* instead : {"null", "\"1\"", "[]", "{}", "[85]"}) {
            EXPECT_EQ(decodeDaemonConfig(with(configText, part, instead)), std::nullopt) << part << instead;
        }
    }
    EXPECT_EQ(decodeDaemonConfig(with(configText, "Enabled\":true", "Enabled\":1")), std::nullopt);
    for (const auto* number : {"85", "14", "1700000000.25"}) {
        EXPECT_EQ(decodeDaemonConfig(with(configText, number, "true")), std::nullopt) << number;
    }
    for (const auto* integer : {"85", "14"}) {
        for (const auto* instead : {"79.9", "9223372036854775808", "-9223372036854775809"}) {
            EXPECT_EQ(decodeDaemonConfig(with(configText, integer, instead)), std::nullopt) << instead;
        }
    }
}

TEST(DaemonConfig, IsRefusedForAKeyThatComesTwice) {
    EXPECT_EQ(decodeDaemonConfig(with(configText, "{", R"({"chargeLimitEnabled":true,)")), std::nullopt);
    EXPECT_EQ(decodeDaemonConfig(with(configText, "{", R"({"x":1,"x":1,)")), std::nullopt);
}

TEST(DaemonConfig, TakesEveryFiniteNumberForATime) {
    for (const auto* time : {"0", "-1", "-0.5", "1e10", "18446744073709551616"}) {
        EXPECT_TRUE(decodeDaemonConfig(with(configText, "1700000000.25", time))) << time;
    }
    EXPECT_EQ(decodeDaemonConfig(with(configText, "1700000000.25", "1e309")), std::nullopt);
}

TEST(DaemonConfig, IsEncodedCompactlyInTheOrderOfItsKeys) {
    EXPECT_EQ(encode(configOfText), configText);
    EXPECT_EQ(encode(DaemonConfig{}),
              R"({"chargeLimitEnabled":false,"chargeLimitPercent":80,"calibrationEnabled":false,)"
              R"("calibrationIntervalDays":30,"lastCalibrationTimestamp":0})");
}

TEST(DaemonConfig, TakesAWholeNumberHoweverItIsWritten) {
    for (const auto* number : {"85.0", "8.5e1", "850e-1"}) {
        EXPECT_EQ(decodeDaemonConfig(with(configText, "85", number)), configOfText) << number;
    }
    EXPECT_EQ(decodeDaemonConfig(with(configText, "14", "14.0")), configOfText);
}

TEST(DaemonConfig, KeepsTheOtherKeysOfTheTextThatItReplaces) {
    const std::string others = R"("later":[{"deep":null}],"a \"word\"":"ä\n","share":0.25,"count":-3)";
    const auto whole = configText.substr(0, configText.size() - 1) + ',' + others + '}';
    EXPECT_EQ(encode(configOfText, whole), whole);
    EXPECT_EQ(encode(configOfText, '{' + others + '}'), whole);
    EXPECT_EQ(encode(configOfText, with(whole, "85", "60")), whole) << "its own are its own";
    EXPECT_EQ(encode(configOfText, "{ " + with(others, "[{", "[ {") + " }"), whole);
}

TEST(DaemonConfig, KeepsNothingOfATextThatIsRefused) {
    for (const auto* text : {"", "{\"x\":1", "[1]", R"({"x":1,"x":2})", R"({"x":1e999})"}) {
        EXPECT_EQ(encode(configOfText, text), configText) << text;
    }
}

TEST(DaemonConfig, KeepsNoMoreThanCanBeReadAgain) {
    const auto withNote = [](std::size_t length) {
        return configText.substr(0, configText.size() - 1) + R"(,"x":")" + std::string(length, 'x') + R"("})";
    };
    const auto longest = withNote(JsonRecord::longestText - withNote(0).size());
    EXPECT_EQ(encode(configOfText, longest), longest);
    auto later = configOfText;
    later.chargeLimitPercent = 100;
    EXPECT_EQ(encode(later, longest), with(configText, "85", "100"));
}

TEST(DaemonConfig, ComesBackFromItsTextWhateverItsNumbers) {
    constexpr auto lowest = std::numeric_limits<std::int64_t>::min();
    constexpr auto highest = std::numeric_limits<std::int64_t>::max();
    for (const double time : {1700000000.0, 1700000000.123456, -1.5, 0.1, 1e16, 1e300, 5e-324, 9.3e18,
                              9007199254740993.0, std::numeric_limits<double>::max()}) {
        const DaemonConfig config{.chargeLimitPercent = lowest,
                                  .calibrationIntervalDays = highest,
                                  .lastCalibrationTimestamp = time};
        EXPECT_EQ(decodeDaemonConfig(encode(config).value_or("")), config) << time;
    }
}

TEST(DaemonConfig, HasNoTextWithoutAFiniteTime) {
    for (const double time :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(encode(DaemonConfig{.lastCalibrationTimestamp = time}), std::nullopt);
    }
}

TEST(DaemonConfig, DoesNotFollowTheLocale) {
    std::setlocale(LC_ALL, "de_DE.UTF-8"); // where it is not installed, the test still holds
    const auto decoded = decodeDaemonConfig(configText);
    const auto encoded = encode(configOfText);
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(decoded, configOfText);
    EXPECT_EQ(encoded, configText);
}

} // namespace
} // namespace quelby
