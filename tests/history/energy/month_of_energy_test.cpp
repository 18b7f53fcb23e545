#include <fmt/format.h>

#include "monitored_energy.h"

namespace quelby {
namespace {

using testing::SizeIs;

TEST(AMonthOfEnergy, IsKeptWholeAndSmall) {
    const TimeZone utc("UTC0");
    const TemporaryFolder folder;
    LivingClock clock;
    const HistoryStore history(folder.path(), clock, HistoryAccess::recording);
    PublishedFields fields;
    fields.cpuPower = 4;
    double used = 0;
    {
        EnergyRecorder recorder(folder.path(), clock);
        for (int i = 0; i < 40 * 72; ++i) { // a cycle every twenty minutes of forty days
            fields.totalPower = 10 + i % 7;
            fields.isPluggedIn = i % 72 > 35;
            const auto listing =
                fmt::format("%CPU APPLICATION\n20.0 Browser\n{}.0 program {}\n", i % 13, i % 60);
            recorder.addCycle(fields, listing);
            used += i >= 10 * 72 ? fields.totalPower * 3 / 3600 : 0;
            clock.time += 1200;
            clock.boot.awake += 1200;
        }
    }
    const EnergyReader reader(folder.path(), clock);
    double kept = 0;
    for (const auto& app : reader.byApp(EnergyRange::thirtyDays)) {
        kept += app.wattHours;
    }
    EXPECT_NEAR(kept, used, used / 100);
    EXPECT_THAT(reader.byHour(EnergyRange::thirtyDays),
                SizeIs(testing::AllOf(testing::Ge(720), testing::Le(721))));
    EXPECT_THAT(byDay(reader.byHour(EnergyRange::thirtyDays), startOfLocalDay),
                SizeIs(31)); // two of them halves
    EXPECT_THAT(reader.sessions(), SizeIs(30));
    EXPECT_LT(std::filesystem::file_size(historyFile(folder.path())), 8'000'000U);
    EXPECT_TRUE(Database(historyFile(folder.path())).isSound());
}

} // namespace
} // namespace quelby
