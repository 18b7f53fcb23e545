#include "ui/presentation/cards/history_card.h"

#include <gtest/gtest.h>

#include "ui/presentation/printing.h"

namespace quelby {
namespace {

const Label collecting{{"chart.line.uptrend.xyaxis", ColorName::secondary}, secondary("Collecting data...")};

TEST(HistoryCard, ShowsTodaysEnergyRangesCurveAndStatistics) {
    PublishedFields fields;
    fields.todayWh = 123.46;
    fields.historyRange = TimeRange::twentyFourHours;
    fields.historyData = std::vector<HistoryDataPoint>{{1'700'000'000, 10}, {1'700'000'060, 20}};
    fields.historyAvg = 15.04;
    fields.historyMin = 9.96;
    fields.historyMax = 20;
    const HistoryCard expected{.symbol = {"chart.bar.fill", ColorName::primary},
                               .title = primary("Consumption History"),
                               .today = secondary("123.5 Wh today"),
                               .ranges = {Choice{"30m", false}, {"1h", false}, {"24h", true}, {"7d", false}},
                               .placeholder = std::nullopt,
                               .points = {{1'700'000'000, 10}, {1'700'000'060, 20}},
                               .badges = {StatBadge{secondary("Avg"), {"15.0W", ColorName::blue}},
                                          {secondary("Min"), {"10.0W", ColorName::green}},
                                          {secondary("Max"), {"20.0W", ColorName::red}}}};
    EXPECT_EQ(historyCard(fields), expected);
}

TEST(HistoryCard, CollectsDataUntilThereAreTwoPoints) {
    PublishedFields fields;
    EXPECT_EQ(historyCard(fields).placeholder, collecting);
    fields.historyData = std::vector<HistoryDataPoint>{{1, 10}};
    EXPECT_EQ(historyCard(fields).placeholder, collecting);
    fields.historyData = std::vector<HistoryDataPoint>{{1, 10}, {2, 10}};
    EXPECT_EQ(historyCard(fields).placeholder, std::nullopt);
}

TEST(HistoryCard, SelectsTheRangeThatIsShown) {
    const char* const texts[] = {"30m", "1h", "24h", "7d"};
    PublishedFields fields;
    for (std::size_t selected = 0; selected < allTimeRanges.size(); ++selected) {
        fields.historyRange = allTimeRanges[selected];
        const auto ranges = historyCard(fields).ranges;
        ASSERT_EQ(ranges.size(), std::size(texts));
        for (std::size_t index = 0; index < ranges.size(); ++index) {
            EXPECT_EQ(ranges[index], (Choice{texts[index], index == selected}));
        }
    }
}

TEST(HistoryCard, RoundsHalvesToEven) {
    PublishedFields fields;
    fields.todayWh = 12.25;
    fields.historyAvg = 12.75;
    EXPECT_EQ(historyCard(fields).today.text, "12.2 Wh today");
    EXPECT_EQ(historyCard(fields).badges[0].value.text, "12.8W");
}

} // namespace
} // namespace quelby
