#include "ui/presentation/cards/efficiency_card.h"

#include <gtest/gtest.h>

#include "ui/presentation/printing.h"

namespace quelby {
namespace {

const Label highDraw{{"exclamationmark.triangle.fill", ColorName::red},
                     secondary("High power draw — close intensive apps to extend battery")};
const Label moderate{{"circle.fill", ColorName::yellow},
                     secondary("Moderate usage — power within normal range")};
const Label lowBattery{{"exclamationmark.triangle.fill", ColorName::red},
                       secondary("Low battery — connect charger soon")};
const Label fullyCharged{{"checkmark.circle.fill", ColorName::green},
                         secondary("Fully charged — unplug to preserve battery longevity")};
const Label efficient{{"checkmark.circle.fill", ColorName::green},
                      secondary("Efficient — running at optimal power levels")};

// The first rule that applies gives the advice.
const Label& ruledAdvice(const PublishedFields& fields) {
    if (fields.totalPower > 30) {
        return highDraw;
    }
    if (fields.totalPower > 20) {
        return moderate;
    }
    if (fields.batteryPercent < 20 && !fields.isPluggedIn) {
        return lowBattery;
    }
    return fields.fullyCharged ? fullyCharged : efficient;
}

class EfficiencyAdviceTest : public testing::Test {
protected:
    EfficiencyAdviceTest() {
        fields.totalPower = 15;
        fields.batteryPercent = 50;
    }

    void expectAdvice(const Label& advice) const { EXPECT_EQ(efficiencyCard(fields).advice, advice); }

    PublishedFields fields;
};

TEST(EfficiencyCard, ShowsScoreStarsRatingAndAdvice) {
    PublishedFields fields;
    fields.efficiency = 73;
    fields.totalPower = 12;
    fields.batteryPercent = 50;
    const EfficiencyCard expected{.symbol = {"gauge.with.dots.needle.bottom.50percent", ColorName::primary},
                                  .title = primary("Efficiency"),
                                  .score = {"73", ColorName::cyan},
                                  .outOf = secondary("/100"),
                                  .stars = "★★★☆☆",
                                  .rating = {"GOOD", ColorName::cyan},
                                  .advice = efficient};
    EXPECT_EQ(efficiencyCard(fields), expected);
}

TEST(EfficiencyCard, FillsAStarForEachTwentyAndGivesTheFirstAway) {
    const std::pair<Int, const char*> expected[] = {
        {-20, "★☆☆☆☆"}, {0, "★☆☆☆☆"},  {19, "★☆☆☆☆"},  {20, "★☆☆☆☆"}, {39, "★☆☆☆☆"},
        {40, "★★☆☆☆"},  {59, "★★☆☆☆"}, {60, "★★★☆☆"},  {79, "★★★☆☆"}, {80, "★★★★☆"},
        {86, "★★★★☆"},  {99, "★★★★☆"}, {100, "★★★★★"}, {120, "★★★★★"}};
    PublishedFields fields;
    for (const auto& [score, stars] : expected) {
        fields.efficiency = score;
        EXPECT_EQ(efficiencyCard(fields).stars, stars) << score;
    }
}

TEST(EfficiencyCard, RatesTheScoreInItsColour) {
    const std::tuple<Int, const char*, ColorName> expected[] = {
        {100, "EXCELLENT", ColorName::green}, {86, "EXCELLENT", ColorName::green},
        {85, "GOOD", ColorName::cyan},        {71, "GOOD", ColorName::cyan},
        {70, "FAIR", ColorName::yellow},      {51, "FAIR", ColorName::yellow},
        {50, "POOR", ColorName::orange},      {31, "POOR", ColorName::orange},
        {30, "CRITICAL", ColorName::red},     {0, "CRITICAL", ColorName::red}};
    PublishedFields fields;
    for (const auto& [score, word, color] : expected) {
        fields.efficiency = score;
        const auto card = efficiencyCard(fields);
        EXPECT_EQ(card.rating, (Text{word, color}));
        EXPECT_EQ(card.score, (Text{std::to_string(score), color}));
    }
}

TEST_F(EfficiencyAdviceTest, WarnsOfAHighDrawAboveThirtyWatts) {
    fields.totalPower = 30.1;
    expectAdvice(highDraw);
    fields.totalPower = 30.0;
    expectAdvice(moderate);
}

TEST_F(EfficiencyAdviceTest, CallsUsageModerateAboveTwentyWatts) {
    fields.totalPower = 20.1;
    expectAdvice(moderate);
    fields.totalPower = 20.0;
    expectAdvice(efficient);
}

TEST_F(EfficiencyAdviceTest, AsksForTheChargerBelowTwentyPercent) {
    fields.batteryPercent = 19;
    expectAdvice(lowBattery);
    fields.batteryPercent = 20;
    expectAdvice(efficient);
}

TEST_F(EfficiencyAdviceTest, DoesNotAskForAChargerThatIsConnected) {
    fields.isPluggedIn = true;
    for (const Int percent : {0, 19, 20}) {
        fields.batteryPercent = percent;
        expectAdvice(efficient);
    }
}

TEST_F(EfficiencyAdviceTest, SaysThatTheBatteryIsFullWhetherPluggedInOrNot) {
    fields.fullyCharged = true;
    expectAdvice(fullyCharged);
    fields.isPluggedIn = true;
    expectAdvice(fullyCharged);
}

// Every combination of what the advice depends on.
TEST_F(EfficiencyAdviceTest, IsThatOfTheFirstRuleThatApplies) {
    for (const double watts : {20.0, 20.1, 30.0, 30.1}) {
        for (int state = 0; state < 8; ++state) {
            fields.totalPower = watts;
            fields.batteryPercent = (state & 1) != 0 ? 19 : 20;
            fields.isPluggedIn = (state & 2) != 0;
            fields.fullyCharged = (state & 4) != 0;
            SCOPED_TRACE(testing::Message() << watts << " W, state " << state);
            expectAdvice(ruledAdvice(fields));
        }
    }
}

} // namespace
} // namespace quelby
