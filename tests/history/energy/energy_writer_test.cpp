#include "energy_fixture.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class EnergyWriterTest : public EnergyTest {};

TEST_F(EnergyWriterTest, AddsToWhatIsThere) {
    add(noonSecond, {{"editor", 1.5}, {"system", 2}});
    add(noonSecond, {{"editor", 0.25}});
    add(noonSecond + anHour, {{"editor", 8}});
    EXPECT_THAT(reader.byApp(EnergyRange::today),
                ElementsAre(NamedEnergy{"editor", 9.75}, NamedEnergy{"system", 2}));
    EXPECT_THAT(reader.byHour(EnergyRange::today),
                ElementsAre(TimedEnergy{noonSecond, 3.75}, TimedEnergy{noonSecond + anHour, 8}));
}

TEST_F(EnergyWriterTest, TakesNamesAsTheyAre) {
    const std::string quoted = "it's \"a\" name; DROP TABLE sleeps; -- \xC3\xBC";
    add(noonSecond, {{quoted, 1}});
    EXPECT_THAT(reader.byApp(EnergyRange::today), ElementsAre(NamedEnergy{quoted, 1}));
}

TEST_F(EnergyWriterTest, KeepsWhatWasUsedSinceTheCableWasPulledApartUntilTheNextTime) {
    add(noonSecond, {{"editor", 1}});
    add(noonSecond, {{"editor", 2}}, true);
    add(noonSecond + anHour, {{"editor", 4}}, true);
    EXPECT_THAT(reader.byApp(EnergyRange::sinceUnplugged), ElementsAre(NamedEnergy{"editor", 6}));
    EXPECT_EQ(sumOf(EnergyRange::today), 7);
    write({.unpluggedAnew = true,
           .hours = {{.hour = noonSecond + anHour, .sinceUnplugged = true, .apps = {{"editor", 8}}}}});
    EXPECT_THAT(reader.byApp(EnergyRange::sinceUnplugged), ElementsAre(NamedEnergy{"editor", 8}));
    EXPECT_EQ(sumOf(EnergyRange::today), 15) << "and nothing is lost";
}

TEST_F(EnergyWriterTest, HasTwoHundredNamesInAnHourAndTheRestUnderOther) {
    EnergyByName crowd{{"system", 0.001}};
    for (int i = 0; i < 10'000; ++i) {
        crowd.emplace(fmt::format("program {}", i), 1 + i * 0.001);
    }
    double whole = 0.001;
    double rest = 0; // of all but the largest 200
    for (int i = 0; i < 10'000; ++i) {
        whole += 1 + i * 0.001;
        rest += i < 9'800 ? 1 + i * 0.001 : 0;
    }
    add(noonSecond, crowd);
    const auto apps = reader.byApp(EnergyRange::today);
    ASSERT_THAT(apps, SizeIs(202));
    EXPECT_EQ(apps[0].name, "other");
    EXPECT_NEAR(apps[0].wattHours, rest, 1e-6);
    EXPECT_EQ(apps[1].name, "program 9999");
    EXPECT_EQ(apps[200].name, "program 9800");
    EXPECT_EQ(apps[201].name, "system");
    EXPECT_NEAR(sumOf(EnergyRange::today), whole, 1e-6);
    add(noonSecond, {{"latecomer", 500}});
    EXPECT_EQ(reader.byApp(EnergyRange::today)[1].name, "latecomer");
    EXPECT_THAT(reader.byApp(EnergyRange::today), SizeIs(202));
    EXPECT_NEAR(sumOf(EnergyRange::today), whole + 500, 1e-6);
}

TEST_F(EnergyWriterTest, CountsANameOnceThoughItStandsOnBothSidesOfAnUnplugging) {
    EnergyByName crowd;
    for (int i = 0; i < 200; ++i) {
        crowd.emplace(fmt::format("program {}", i), 1);
    }
    add(noonSecond, crowd);
    add(noonSecond, crowd, true);
    EXPECT_THAT(reader.byApp(EnergyRange::today), SizeIs(200));
    EXPECT_THAT(reader.byApp(EnergyRange::sinceUnplugged), SizeIs(200));
}

TEST_F(EnergyWriterTest, RemovesHoursAfterThirtyDays) {
    add(noonSecond, {{"editor", 1}});
    clock.time = noon + 30 * day;
    write({});
    EXPECT_EQ(Database(file).number("SELECT COUNT(*) FROM app_energy"), 1);
    clock.time += 1;
    write({});
    EXPECT_EQ(Database(file).number("SELECT COUNT(*) FROM app_energy"), 0);
    EXPECT_EQ(Database(file).number("SELECT COUNT(*) FROM component_energy"), 0);
}

TEST_F(EnergyWriterTest, KeepsTheLastThirtySleepsAndSessionsOfEachKind) {
    for (int i = 0; i < 35; ++i) {
        const auto start = noonSecond + i * 10 * anHour;
        write(
            {.sleeps = {{.start = start, .end = start + 60, .seconds = 60}},
             .sessions = {{.kind = SessionKind::charge, .start = start, .end = start + 60, .seconds = 60}}});
    }
    write({.sessions = {{.kind = SessionKind::discharge, .start = noonSecond, .end = noonSecond + 99}}});
    const auto sleeps = reader.sleeps();
    ASSERT_THAT(sleeps, SizeIs(30));
    EXPECT_EQ(sleeps.front().start, noonSecond + 340 * anHour) << "latest first";
    EXPECT_EQ(sleeps.back().start, noonSecond + 50 * anHour);
    const auto sessions = reader.sessions();
    ASSERT_THAT(sessions, SizeIs(31));
    EXPECT_EQ(sessions.back().kind, SessionKind::discharge);
    EXPECT_EQ(sessions[29].start, noonSecond + 50 * anHour);
}

TEST_F(EnergyWriterTest, RenewsASessionThatGoesOn) {
    Session session{.kind = SessionKind::discharge,
                    .start = noonSecond,
                    .end = noonSecond + 60,
                    .seconds = 60,
                    .percentFrom = 80,
                    .percentTo = 79,
                    .wattHours = 0.5};
    write({.sessions = {session}});
    session.end += 60;
    session.percentTo = 77;
    write({.sessions = {session,
                        {.kind = SessionKind::calibration, .start = noonSecond, .end = noonSecond + 999}}});
    EXPECT_THAT(reader.sessions(), testing::Contains(session));
    EXPECT_THAT(reader.sessions(), SizeIs(2));
    EXPECT_EQ(writer.lastSession(), session) << "a calibration is none of the battery's own";
}

TEST_F(EnergyWriterTest, KeepsARowForEachDayWithItsHighestTemperature) {
    BatteryDay monday{.day = noonSecond - 12 * anHour,
                      .fullCapacity = 4600,
                      .designCapacity = 5000,
                      .cycleCount = 211,
                      .maxTemperature = 31};
    write({.days = {monday}});
    monday.fullCapacity = 4590;
    monday.cycleCount = 212;
    monday.maxTemperature = 29;
    write({.days = {monday}});
    monday.maxTemperature = std::nullopt;
    write({.days = {monday}});
    BatteryDay tuesday{.day = noonSecond + 12 * anHour, .fullCapacity = 4580};
    write({.days = {tuesday}});
    monday.maxTemperature = 31;
    EXPECT_THAT(reader.batteryDays(), ElementsAre(monday, tuesday));
    clock.time += 4000 * day;
    write({});
    EXPECT_THAT(reader.batteryDays(), SizeIs(2)) << "for good";
}

TEST_F(EnergyWriterTest, WritesAllOrNothing) {
    add(noonSecond, {{"editor", 1}});
    Database(file).execute("DROP TABLE sleeps");
    EXPECT_FALSE(writer.write(
        {.hours = {{.hour = noonSecond, .apps = {{"editor", 5}}}}, .sleeps = {{.start = noonSecond}}},
        clock.time));
    EXPECT_EQ(sumOf(EnergyRange::today), 1);
    history.addReading(10, 50, false, 20); // is not kept waiting by what failed
    EXPECT_EQ(Database(file).tables().readings.size(), 1U);
}

TEST_F(EnergyWriterTest, WaitsForNobodyForLongAndSucceedsLater) {
    const EnergyBatch batch{.hours = {{.hour = noonSecond, .apps = {{"editor", 5}}}}};
    Database another(file);
    another.execute("BEGIN IMMEDIATE");
    EXPECT_FALSE(writer.write(batch, clock.time));
    another.execute("ROLLBACK");
    write(batch);
    EXPECT_EQ(sumOf(EnergyRange::today), 5);
}

TEST(EnergyWriterWithoutAFile, KeepsNothingAndSaysNothing) {
    EnergyWriter writer("/proc/nowhere");
    EXPECT_FALSE(writer.isOpen());
    EXPECT_FALSE(writer.write({}, noon));
    EXPECT_EQ(writer.lastSession(), std::nullopt);
}

} // namespace
} // namespace quelby
