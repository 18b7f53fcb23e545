#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <random>

#include "base/number_text.h"
#include "history/support/recorder_fixture.h"
#include "history/support/tables.h"

namespace quelby {
namespace {

constexpr int step = 61; // seconds: each reading makes the history aggregate and prune
constexpr int linesOfARound = 400;
constexpr int readingsKept = 7200 / step + 1;

// QUELBY_KILL_ROUNDS asks for more.
std::int64_t rounds() {
    const char* const asked = std::getenv("QUELBY_KILL_ROUNDS");
    return asked == nullptr ? 10 : wholeNumber(asked).value_or(0);
}

class KilledRecorder : public RecorderTest {
protected:
    // Starts the recorder, kills it after so many lines, and gives the number of lines that it had printed.
    [[nodiscard]] std::ptrdiff_t linesUntilKilled(double start, std::ptrdiff_t lines) const {
        RunningProgram program(recorder(recording(start, step, linesOfARound), {"--fast"}), environment());
        readLines(program, lines);
        program.signal(SIGKILL);
        const auto killed = program.end();
        EXPECT_EQ(killed.exitStatus, 128 + SIGKILL);
        return lines + std::count(killed.output.begin(), killed.output.end(), '\n');
    }

    // As the recorder left it: reading does not tidy up after it.
    [[nodiscard]] Database history() const {
        auto connection = openForReading(file);
        if (!connection) {
            ADD_FAILURE() << connection.error().sentence;
            return Database(Connection());
        }
        return Database(std::move(*connection));
    }
};

template <typename Rows>
std::ptrdiff_t rowsSince(double start, const Rows& rows) {
    return std::distance(rows.lower_bound(static_cast<std::int64_t>(start)), rows.end());
}

TEST_F(KilledRecorder, LosesAtMostTheReadingInFlightAndNeverTheDatabase) {
    ASSERT_EQ(runProgram(recorder(recording(firstTime, step, 1), {"--fast"})).exitStatus, 0);
    std::mt19937 chance(1);
    ASSERT_GT(rounds(), 0);
    for (std::int64_t round = 1; round <= rounds() && !HasFailure(); ++round) {
        const double start = firstTime + static_cast<double>(round) * linesOfARound * step;
        const auto printed = linesUntilKilled(start, std::uniform_int_distribution(0, 300)(chance));
        SCOPED_TRACE(testing::Message() << "round " << round << ", " << printed << " lines");
        auto database = history();
        EXPECT_TRUE(database.isSound());
        const auto [readings, minutes, hours] = database.tables();
        const auto last = readings.rbegin()->first;
        const auto recorded = std::max<std::int64_t>((last - static_cast<std::int64_t>(start)) / step + 1, 0);
        EXPECT_GE(recorded, printed);
        EXPECT_LE(recorded, printed + 1);
        EXPECT_GE(rowsSince(start, readings), std::min<std::ptrdiff_t>(printed, readingsKept));
        EXPECT_GE(rowsSince(start - 59, minutes), printed);
    }
}

} // namespace
} // namespace quelby
