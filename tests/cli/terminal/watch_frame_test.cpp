#include "cli/terminal/watch_frame.h"

#include <cstdlib>
#include <ctime>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/terminal/display_width.h"

namespace quelby::cli {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

constexpr Date now = 1'700'000'000;

class WatchFrameTest : public testing::Test {
protected:
    WatchFrameTest() {
        ::setenv("TZ", "UTC0", 1);
        ::tzset();
        fields.batteryPercent = 50;
        fields.realWatts = 14.985;
        fields.totalPower = 15;
        fields.cpuPower = 7.5;
        fields.predictedTime = "~3h 12m remaining";
        fields.batteryRateStr = "-8.4%/hr";
        fields.topProcesses = std::vector<ProcessInfo_Energy>{{"editor", 25.0, 5.0}, {"ブラウザ", 12.5, 2.5}};
        fields.powerHistory = std::vector<double>{10, 20, 15};
    }

    [[nodiscard]] std::vector<std::string> frame(int columns, int rows,
                                                 Colours colours = Colours::off) const {
        return watchFrame(fields, now, {columns, rows}, colours);
    }

    PublishedFields fields;
};

std::string repeated(std::string_view text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

TEST_F(WatchFrameTest, ShowsBatteryPowerProcessesAndTrend) {
    const auto lines = frame(60, 40);
    EXPECT_EQ(lines.front(), " Quelby" + repeated(" ", 44) + "22:13:20");
    EXPECT_THAT(lines, Contains(" Battery" + repeated(" ", 40) + "discharging"));
    EXPECT_THAT(lines, Contains("   50 % " + repeated("█", 25) + "▌" + repeated(" ", 25))); // half of 51
    EXPECT_THAT(lines, Contains(" 15.0 W   0.00 V   0 mA   0.0 °C"));
    EXPECT_THAT(lines, Contains(" ~3h 12m remaining  -8.4%/hr"));
    EXPECT_THAT(lines, Contains(" CPU         7.5 W  " + repeated("█", 19) + "▌" + repeated(" ", 19)));
    EXPECT_THAT(lines, Contains(" System     15.0 W"));
    EXPECT_THAT(lines, Contains(" editor" + repeated(" ", 35) + "25.0 %     5.00 W"));
    EXPECT_THAT(lines, Contains(" ブラウザ" + repeated(" ", 33) + "12.5 %     2.50 W"));
    EXPECT_THAT(lines, Contains(" Trend" + repeated(" ", 39) + "10.0 to 20.0 W"));
    EXPECT_THAT(lines, Contains(" ▁█▅"));
}

TEST_F(WatchFrameTest, FitsEverySize) {
    fields.isPluggedIn = true;
    fields.powerHistory = std::vector<double>(60, 5.0);
    for (const int columns : {1, 2, 5, 20, 21, 22, 40, 80, 103, 300}) {
        for (const int rows : {1, 3, 24, 200}) {
            const auto lines = frame(columns, rows);
            EXPECT_LE(lines.size(), static_cast<std::size_t>(rows));
            for (const auto& line : lines) {
                EXPECT_LE(displayWidth(line), columns) << columns << " columns: " << line;
            }
        }
    }
}

TEST_F(WatchFrameTest, IsTheSameTextWithColours) {
    const auto coloured = frame(60, 40, Colours::on);
    const auto plain = frame(60, 40);
    ASSERT_EQ(coloured.size(), plain.size());
    bool anyColour = false;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        std::string stripped;
        for (std::size_t at = 0; at < coloured[i].size(); ++at) {
            if (coloured[i][at] == '\x1b') {
                at = coloured[i].find('m', at);
                anyColour = true;
            } else {
                stripped += coloured[i][at];
            }
        }
        EXPECT_EQ(stripped, plain[i]);
    }
    EXPECT_TRUE(anyColour);
    EXPECT_THAT(plain, Not(Contains(HasSubstr("\x1b"))));
}

TEST_F(WatchFrameTest, ColoursTheLevelByHowMuchIsLeft) {
    const std::pair<Int, const char*> expected[] = {
        {51, "\x1b[32m"}, {50, "\x1b[33m"}, {21, "\x1b[33m"}, {20, "\x1b[31m"}};
    for (const auto& [percent, colour] : expected) {
        fields.batteryPercent = percent;
        EXPECT_THAT(frame(60, 40, Colours::on), Contains(HasSubstr(fmt::format("% \x1b[0m{}█", colour))))
            << percent;
    }
}

TEST_F(WatchFrameTest, LeavesOutTheBatteryThatThereIsNot) {
    fields.hasBattery = false;
    const auto lines = frame(60, 40);
    EXPECT_THAT(lines, Contains(" Battery" + std::string(47, ' ') + "none"));
    EXPECT_THAT(lines, Not(Contains(HasSubstr("health"))));
}

TEST_F(WatchFrameTest, TellsWhereTheAdaptersPowerGoes) {
    fields.isPluggedIn = true;
    fields.acTotal = 37;
    fields.chargePower = 22;
    EXPECT_THAT(frame(80, 40), Contains(HasSubstr("adapter 37.0 W, of it 22.0 W into the battery")));
}

TEST_F(WatchFrameTest, LetsNoNameLeaveItsLine) {
    fields.topProcesses = std::vector<ProcessInfo_Energy>{{"a\x1b[2J\nb", 1.0, 0.0}};
    EXPECT_THAT(frame(60, 40), Contains(HasSubstr("a?[2J?b")));
}

TEST_F(WatchFrameTest, SurvivesAbsurdFigures) {
    fields.batteryPercent = std::numeric_limits<Int>::min();
    fields.totalPower = 1e300;
    fields.cpuPower = -1e300;
    fields.powerHistory = std::vector<double>{-1e308, 1e308};
    EXPECT_FALSE(frame(60, 40).empty());
}

} // namespace
} // namespace quelby::cli
