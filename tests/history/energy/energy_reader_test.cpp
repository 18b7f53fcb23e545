#include "energy_fixture.h"

#include <gmock/gmock.h>

#include "support/time_zone.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EnergyReaderTest : public EnergyTest {
protected:
    // The hour's energy is the number of hours that have passed since then.
    void addHoursUntilNoon(int count) {
        for (int i = 0; i < count; ++i) {
            add(noonSecond - i * anHour, {{"editor", i}});
        }
    }
};

TEST_F(EnergyReaderTest, BeginsTodayWithTheHourAtMidnight) {
    addHoursUntilNoon(20);
    EXPECT_EQ(reader.byHour(EnergyRange::today).front(), (TimedEnergy{noonSecond - 12 * anHour, 12}));
}

TEST_F(EnergyReaderTest, BeginsOtherRangesWithTheFirstHourThatReachesIntoThem) {
    addHoursUntilNoon(30 * 24);
    EXPECT_EQ(reader.byHour(EnergyRange::twentyFourHours).front().start, noonSecond - 24 * anHour);
    clock.time += 0.5 * anHour;
    EXPECT_EQ(reader.byHour(EnergyRange::twentyFourHours).front().start, noonSecond - 24 * anHour);
    EXPECT_EQ(reader.byHour(EnergyRange::sevenDays).front().start, noonSecond - 7 * 24LL * anHour);
    clock.time += 0.5 * anHour;
    EXPECT_EQ(reader.byHour(EnergyRange::twentyFourHours).front().start, noonSecond - 23 * anHour);
    EXPECT_EQ(reader.byHour(EnergyRange::thirtyDays).size(), 30 * 24U);
}

TEST_F(EnergyReaderTest, TellsTheLargestFirstAndEqualOnesByName) {
    add(noonSecond, {{"b", 1}, {"c", 2}, {"a", 1}});
    EXPECT_THAT(reader.byApp(EnergyRange::today),
                ElementsAre(NamedEnergy{"c", 2}, NamedEnergy{"a", 1}, NamedEnergy{"b", 1}));
    EXPECT_THAT(reader.byComponent(EnergyRange::today), ElementsAre(NamedEnergy{"cpu", 4}));
}

TEST_F(EnergyReaderTest, TellsThoseFirstThatAreLargestInSum) {
    add(noonSecond - anHour, {{"steady", 2}, {"sudden", 3}});
    add(noonSecond, {{"steady", 2}});
    EXPECT_THAT(reader.byApp(EnergyRange::today),
                ElementsAre(NamedEnergy{"steady", 4}, NamedEnergy{"sudden", 3}));
}

TEST_F(EnergyReaderTest, PassesOverWhatANewerProgramWrote) {
    Database(file).execute("INSERT INTO sessions VALUES ('thunder', 1, 2, 3, 4, 5, 6)");
    EXPECT_THAT(reader.sessions(), IsEmpty());
}

TEST_F(EnergyReaderTest, TellsASleepWhoseEnergyIsNotKnown) {
    const Sleep sleep{.start = noonSecond,
                      .end = noonSecond + 100,
                      .seconds = 90,
                      .percentBefore = 50.5,
                      .percentAfter = 50.25};
    write({.sleeps = {sleep}});
    EXPECT_THAT(reader.sleeps(), ElementsAre(sleep));
}

TEST(EnergyReaderOfAnOlderHistory, FindsNothing) {
    const TemporaryFolder folder;
    SetClock clock;
    const EnergyReader reader(folder.path(), clock);
    EXPECT_FALSE(reader.opened());
    EXPECT_THAT(reader.byApp(EnergyRange::today), IsEmpty());
    const HistoryStore older(folder.path(), clock, HistoryAccess::recording);
    EXPECT_TRUE(reader.opened());
    for (const auto range : allEnergyRanges) {
        EXPECT_THAT(reader.byApp(range), IsEmpty());
        EXPECT_THAT(reader.byHour(range), IsEmpty());
    }
    EXPECT_THAT(reader.sleeps(), IsEmpty());
    EXPECT_THAT(reader.sessions(), IsEmpty());
    EXPECT_THAT(reader.batteryDays(), IsEmpty());
}

TEST(EnergyByDay, PutsTheHoursOfADayTogether) {
    const auto startOfDay = [](Date moment) { return moment < noon ? noon - 86400 : noon; }; // at noon
    EXPECT_THAT(
        byDay({{noonSecond - 7200, 1}, {noonSecond - 3600, 2}, {noonSecond, 4}, {noonSecond + 3600, 8}},
              startOfDay),
        ElementsAre(TimedEnergy{noonSecond - 86400, 3}, TimedEnergy{noonSecond, 12}));
    EXPECT_THAT(byDay({}, startOfDay), IsEmpty());
}

TEST(EnergyRanges, AreFoundByTheirNames) {
    const std::tuple<EnergyRange, const char*, const char*> names[] = {
        {EnergyRange::today, "today", "Today"},
        {EnergyRange::twentyFourHours, "24h", "24 Hours"},
        {EnergyRange::sevenDays, "7d", "7 Days"},
        {EnergyRange::thirtyDays, "30d", "30 Days"},
        {EnergyRange::sinceUnplugged, "since-unplugged", "On Battery"}};
    EXPECT_EQ(std::size(names), allEnergyRanges.size());
    for (const auto& [range, raw, shown] : names) {
        EXPECT_EQ(rawValue(range), raw);
        EXPECT_EQ(energyRange(raw), range);
        EXPECT_EQ(label(range), shown);
    }
    EXPECT_EQ(energyRange("yesterday"), std::nullopt);
    EXPECT_EQ(rawValue(EnergyRange{9}), "");
    EXPECT_EQ(label(EnergyRange{9}), "");
}

} // namespace
} // namespace quelby
