#include "history/support/history_fixture.h"

namespace quelby {
namespace {

using HistoryDays = HistoryTest;

TEST_F(HistoryDays, KeepTablesAndFilesWithinTheirBounds) {
    constexpr int step = 120;
    constexpr std::uintmax_t page = 512;
    std::uintmax_t settled = 0;
    for (double start = noon; start < noon + 3 * day; start += 6 * hour) {
        recordEvery(step, start, start + 6 * hour);
        const auto [readings, minutes, hours] = tables();
        EXPECT_LE(readings.size(), 7200U / step + 1 + 3); // and what came since the last pruning
        EXPECT_LE(minutes.size(), 2U * 24 * 60 + 2);
        const double sinceNoon = (start - noon) / hour + 6;
        EXPECT_EQ(hours.size(), static_cast<std::size_t>(sinceNoon));
        if (sinceNoon == 54) {
            settled = std::filesystem::file_size(file);
        }
    }
    EXPECT_GT(settled, 0U);
    EXPECT_LE(std::filesystem::file_size(file), settled + 8 * page); // some hours more
    EXPECT_LE(std::filesystem::file_size(file.string() + "-wal"), 1100 * page);
    EXPECT_TRUE(Database(file).isSound());
}

} // namespace
} // namespace quelby
