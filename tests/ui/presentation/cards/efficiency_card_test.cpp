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
    if (fields.hasBattery && fields.batteryPercent < 20 && !fields.isPluggedIn) {
        return lowBattery;
    }
    return fields.fullyCharged ? fullyCharged : efficient;
}

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

// Every combination of what the advice depends on, at its boundaries.
TEST(EfficiencyCard, GivesTheAdviceOfTheFirstRuleThatApplies) {
    for (const double watts : {15.0, 20.0, 20.1, 30.0, 30.1}) {
        for (const Int percent : {0, 19, 20, 50}) {
            for (int state = 0; state < 8; ++state) {
                PublishedFields fields;
                fields.totalPower = watts;
                fields.batteryPercent = percent;
                fields.isPluggedIn = (state & 1) != 0;
                fields.fullyCharged = (state & 2) != 0;
                fields.hasBattery = (state & 4) == 0;
                EXPECT_EQ(efficiencyCard(fields).advice, ruledAdvice(fields))
                    << watts << " W, " << percent << " %, state " << state;
            }
        }
    }
}

} // namespace
} // namespace quelby
