#include "app/linux/tray/short_title.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

struct ShortenedTitle {
    std::string_view whole;
    std::string_view shortened;
};

constexpr ShortenedTitle shortenedTitles[] = {
    {"1520 mA", "1.5A"},    {"0 mA", "0.0A"},     {"49 mA", "0.0A"},
    {"51 mA", "0.1A"},      {"731 mA", "0.7A"},   {"9949 mA", "9.9A"},
    {"9950 mA", "10A"},     {"12345 mA", "12A"},  {"31.4°C", "31°"},
    {"31.6°C", "32°"},      {"-5.2°C", "-5°"},    {"0.0°C", "0°"},
    {"12.61V", "12.6V"},    {"0.00V", "0.0V"},    {"19.97V", "20.0V"},
    {"-12W", "-12W"},       {"35W", "35W"},       {"-112W", "-112W"},
    {"80%", "80%"},         {"100%", "100%"},     {"", ""},
    {" mA", " mA"},         {"°C", "°C"},         {"V", "V"},
    {"many mA", "many mA"}, {"12:30V", "12:30V"}, {"inf mA", "inf mA"},
    {"nanV", "nanV"},       {"1e3 mA", "1.0A"},
};

TEST(ShortTitle, SaysWhatCanBeReadInASquare) {
    for (const auto& title : shortenedTitles) {
        EXPECT_EQ(shortTitle(title.whole), title.shortened) << title.whole;
    }
}

} // namespace
} // namespace quelby::app
