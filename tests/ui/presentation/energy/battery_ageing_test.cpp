#include "ui/presentation/energy/battery_ageing.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

// A battery of 5000 mAh that loses so much of it each day.
std::vector<BatteryDay> days(int count, double lossOfADay, double wobble = 0) {
    std::vector<BatteryDay> days;
    for (int i = 0; i < count; ++i) {
        const double full = 4800 - lossOfADay * i + (i % 2 == 0 ? wobble : -wobble);
        days.push_back({.day = 19'000LL * 86'400 + i * 86'400LL,
                        .fullCapacity = static_cast<std::int64_t>(full),
                        .designCapacity = 5000});
    }
    return days;
}

TEST(Health, IsFullChargeRelativeToDesign) {
    EXPECT_EQ(healthPercent({.fullCapacity = 4500, .designCapacity = 5000}), 90.0);
    EXPECT_EQ(healthPercent({.fullCapacity = 4500}), std::nullopt);
    EXPECT_EQ(healthPercent({.fullCapacity = 4500, .designCapacity = 0}), std::nullopt);
    EXPECT_EQ(healthPercent({.fullCapacity = 1, .designCapacity = 1}), 100.0);
}

TEST(Ageing, TakesSixtyDays) {
    EXPECT_EQ(ageingLine(days(59, 2)), std::nullopt);
    EXPECT_EQ(ageingText(days(59, 2)), "1 more day until this can be told");
    EXPECT_EQ(ageingText({}), "60 more days until this can be told");
    EXPECT_TRUE(ageingLine(days(60, 2)));
}

TEST(Ageing, IsTheSlopeOfTheLineThroughAllDays) {
    const auto line = ageingLine(days(91, 2)).value(); // 0.04 % a day
    EXPECT_NEAR(line.percentPerMonth, -0.04 * 30.4375, 1e-9);
    EXPECT_NEAR(line.first, 96, 1e-9);
    EXPECT_NEAR(line.last, 92.4, 1e-9);
    EXPECT_EQ(ageingText(days(91, 2)), "about 1.2 % a month");
    EXPECT_NEAR(ageingLine(days(90, 2, 50))->percentPerMonth, line.percentPerMonth, 0.05)
        << "what a battery says wobbles";
}

TEST(Ageing, IsOfTheDaysThatAreThere) {
    auto known = days(120, 2);
    for (std::size_t i = 0; i < known.size(); i += 2) {
        known[i].designCapacity = std::nullopt;
    }
    EXPECT_NEAR(ageingLine(known)->percentPerMonth, -0.04 * 30.4375, 1e-9);
    known.pop_back();
    EXPECT_EQ(ageingLine(known), std::nullopt);
}

TEST(Ageing, IsNotSeenWhereTheCapacityStaysOrGrows) {
    EXPECT_EQ(ageingText(days(100, 0)), "no ageing to be seen");
    EXPECT_EQ(ageingText(days(100, -1)), "no ageing to be seen");
    EXPECT_EQ(ageingText(days(100, 0.074)), "no ageing to be seen");
    EXPECT_EQ(ageingText(days(100, 0.09)), "about 0.1 % a month");
}

} // namespace
} // namespace quelby
