#include "ui/presentation/cards/trend_card.h"

#include <gtest/gtest.h>

#include "ui/presentation/printing.h"

namespace quelby {
namespace {

TEST(TrendCard, IsThereFromTheThirdSampleOn) {
    PublishedFields fields;
    for (const std::size_t count : {0U, 1U, 2U, 3U, 4U, 60U}) {
        fields.powerHistory = std::vector<double>(count, 12.0);
        EXPECT_EQ(trendCard(fields).has_value(), count >= 3) << count;
    }
}

TEST(TrendCard, ShowsLeastMeanAndMostOfAllSamples) {
    PublishedFields fields;
    fields.totalPower = 17.6;
    fields.powerHistory = std::vector{20.0, 8.4, 30.6, 10.0};
    const TrendCard expected{.symbol = {"waveform.path.ecg", ColorName::primary},
                             .title = primary("Live Power Trend"),
                             .now = secondary("18W now"),
                             .samples = {20.0, 8.4, 30.6, 10.0},
                             .min = {"8W min", ColorName::green},
                             .avg = {"17W avg", ColorName::blue},
                             .max = {"31W max", ColorName::red}};
    EXPECT_EQ(trendCard(fields), expected);
}

TEST(TrendCard, FindsLeastAndMostAtBothEnds) {
    PublishedFields fields;
    fields.powerHistory = std::vector{1.0, 2.0, 9.0};
    EXPECT_EQ(trendCard(fields)->min.text, "1W min");
    EXPECT_EQ(trendCard(fields)->max.text, "9W max");
    fields.powerHistory = std::vector{9.0, 2.0, 1.0};
    EXPECT_EQ(trendCard(fields)->min.text, "1W min");
    EXPECT_EQ(trendCard(fields)->max.text, "9W max");
}

TEST(TrendCard, RoundsHalvesToEven) {
    PublishedFields fields;
    fields.totalPower = 12.5;
    fields.powerHistory = std::vector{10.5, 12.5, 14.5};
    const auto card = trendCard(fields);
    EXPECT_EQ(card->now.text, "12W now");
    EXPECT_EQ(card->min.text, "10W min");
    EXPECT_EQ(card->avg.text, "12W avg");
    EXPECT_EQ(card->max.text, "14W max");
    fields.powerHistory = std::vector{11.5, 13.5, 15.5};
    EXPECT_EQ(trendCard(fields)->avg.text, "14W avg");
}

} // namespace
} // namespace quelby
