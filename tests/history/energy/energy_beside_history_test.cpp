// The history's own tables with those of energy beside them are what they were without, to the last byte of
// a value and of a declaration; and who knows only the former, as older programs do, goes on with them.
#include <array>
#include <cmath>

#include <fmt/format.h>

#include "energy_fixture.h"

namespace quelby {
namespace {

constexpr std::array historyTables{"readings", "minute_avg", "hour_avg"};
constexpr std::array energyTables{"app_energy", "component_energy", "sleeps", "sessions", "battery_days"};

template <typename Names>
std::string declarations(const std::filesystem::path& file, const Names& names) {
    Database database(file);
    std::string all;
    for (const auto* const name : names) {
        all += database.declaration(name);
    }
    return all;
}

template <typename Names>
std::string contents(const std::filesystem::path& file, const Names& names) {
    Database database(file);
    std::string all;
    for (const auto* const name : names) {
        all += fmt::format("{}:\n{}", name, database.dump(name));
    }
    return all;
}

class EnergyBesideHistory : public EnergyTest {
protected:
    // The same three hours and more for both, a reading every ten seconds.
    void recordBoth(double from, double seconds) {
        for (double passed = 0; passed < seconds; passed += 10) {
            clock.time = from + passed;
            const double watts = 5 + std::fmod(passed, 7) / 3;
            const auto percent = static_cast<std::int64_t>(passed) % 101;
            history.addReading(watts, percent, percent > 50, watts * 1.7);
            plain.addReading(watts, percent, percent > 50, watts * 1.7);
            if (std::fmod(passed, 60) == 0) {
                const auto now = static_cast<std::int64_t>(clock.time);
                write({.hours = {{.hour = now / 3600 * 3600, .apps = {{"editor", watts}}}},
                       .sleeps = {{.start = now}},
                       .sessions = {{.kind = SessionKind::charge, .start = now, .end = now + 60}},
                       .days = {{.day = now / 86'400 * 86'400, .fullCapacity = 4600}}});
            }
        }
    }

    void expectTheSameHistory() {
        EXPECT_EQ(declarations(file, historyTables), declarations(plainFile, historyTables));
        EXPECT_EQ(contents(file, historyTables), contents(plainFile, historyTables));
    }

    TemporaryFolder plainFolder;
    HistoryStore plain{plainFolder.path(), clock, HistoryAccess::recording};
    std::filesystem::path plainFile = historyFile(plainFolder.path());
};

TEST_F(EnergyBesideHistory, LeavesItsTablesByteForByteAsTheyAre) {
    recordBoth(noon, 10'000);
    ASSERT_EQ(Database(file).number("SELECT COUNT(*) FROM app_energy"), 3);
    ASSERT_GT(Database(file).number("SELECT COUNT(*) FROM minute_avg"), 160);
    expectTheSameHistory();
}

TEST_F(EnergyBesideHistory, MakesNothingElseThanItsOwnTables) {
    EXPECT_EQ(Database(file).number("SELECT COUNT(*) FROM sqlite_schema WHERE sql IS NOT NULL"),
              static_cast<std::int64_t>(historyTables.size() + energyTables.size()));
    for (const auto* const setting :
         {"user_version", "application_id", "page_size", "auto_vacuum", "encoding"}) {
        EXPECT_EQ(Database(file).number(fmt::format("PRAGMA {}", setting)),
                  Database(plainFile).number(fmt::format("PRAGMA {}", setting)))
            << setting;
    }
}

TEST_F(EnergyBesideHistory, IsPassedOverByAProgramThatKnowsTheHistoryOnly) {
    recordBoth(noon, 600);
    const auto declared = declarations(file, energyTables);
    const auto kept = contents(file, energyTables);
    HistoryStore older(folder.path(), clock, HistoryAccess::recording);
    for (const double later : {3600.0, 3 * 3600.0, 3 * 86'400.0, 40 * 86'400.0}) { // prunes all in the end
        clock.time = noon + later;
        older.addReading(7.5, 33, false, 20);
        plain.addReading(7.5, 33, false, 20);
        expectTheSameHistory();
        EXPECT_EQ(older.todayWh(), plain.todayWh());
    }
    EXPECT_EQ(Database(file).number("SELECT COUNT(*) FROM hour_avg"), 1) << "pruned";
    EXPECT_EQ(declarations(file, energyTables), declared);
    EXPECT_EQ(contents(file, energyTables), kept);
    clock.time = noon + 700;
    add(noonSecond, {{"editor", 1}});
    EXPECT_GT(sumOf(EnergyRange::today), 1) << "and a newer one finds its own again";
}

TEST_F(EnergyBesideHistory, IsMadeInAHistoryOfAnOlderProgram) {
    plain.addReading(12, 50, false, 20);
    const auto before = contents(plainFile, historyTables);
    const auto declared = declarations(plainFile, historyTables);
    EnergyWriter newer(plainFolder.path());
    EXPECT_TRUE(newer.write({.hours = {{.hour = noonSecond, .apps = {{"editor", 1}}}}}, clock.time));
    EXPECT_EQ(contents(plainFile, historyTables), before);
    EXPECT_EQ(declarations(plainFile, historyTables), declared);
}

} // namespace
} // namespace quelby
