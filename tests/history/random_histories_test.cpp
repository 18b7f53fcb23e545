#include <algorithm>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "history/history_file.h"
#include "history/history_store.h"
#include "history/support/history_model.h"
#include "history/support/set_clock.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

// SQLite is free to add up a mean or a sum in another order, or more precisely, so the last bits may differ.
constexpr double tolerance = 1e-9;

bool equal(double left, double right) {
    return std::abs(left - right) <= tolerance * std::max({1.0, std::abs(left), std::abs(right)});
}

bool equal(const Means& left, const Means& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](const auto& a, const auto& b) {
        return a.first == b.first && equal(a.second.watts, b.second.watts) &&
               equal(a.second.batteryPct, b.second.batteryPct);
    });
}

bool equal(const std::vector<HistoryDataPoint>& left, const std::vector<HistoryDataPoint>& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const auto& a, const auto& b) { return a.id == b.id && equal(a.watts, b.watts); });
}

class Chance {
public:
    explicit Chance(unsigned seed) : engine_(seed) {}

    [[nodiscard]] int between(int least, int most) {
        return std::uniform_int_distribution(least, most)(engine_);
    }

    [[nodiscard]] bool oneIn(int cases) { return between(1, cases) == 1; }

    // Seconds to the next reading: mostly some, and now and then whatever clocks and people do.
    [[nodiscard]] double step() {
        switch (between(0, 29)) {
        case 0:
            return between(-120, 0);
        case 1:
            return -between(1, 72) * hour;
        case 2:
            return between(1, 60) * day;
        case 3:
            return between(40, 56) * hour;
        case 4:
        case 5:
        case 6:
            return between(90, 150) * minute;
        case 7:
        case 8:
        case 9:
            return between(57, 63);
        case 10:
        case 11:
            return between(0, 3) / 4.0; // within the same second, often
        default:
            return between(1, 40);
        }
    }

private:
    std::mt19937 engine_;
};

// A store and the model that live through the same.
class RandomHistory {
public:
    explicit RandomHistory(unsigned seed) : chance_(seed) {}

    void live(int readings) {
        clock_.time += chance_.between(-100'000, 100'000) / 4.0;
        const double zone = chance_.between(-48, 56) * 15 * minute;
        for (int reading = 0; reading < readings; ++reading) {
            clock_.time += chance_.step();
            clock_.dayStart = std::floor((clock_.time + zone) / day) * day - zone;
            record({chance_.between(-4000, 40'000) / 256.0, chance_.between(0, 100), chance_.oneIn(2),
                    chance_.between(0, 400) / 4.0});
            if (chance_.oneIn(25)) {
                openAgain();
            }
            if (chance_.oneIn(12)) {
                compareAnswers();
            }
        }
        compareAnswers();
        compareTables();
    }

    // A reading every 3 seconds and no surprises, for curves that are thinned.
    void liveQuietly() {
        for (int reading = chance_.between(250, 1300); reading > 0; --reading) {
            clock_.time += 3;
            record({chance_.between(0, 40'000) / 256.0, 50, false, 10.0});
        }
    }

private:
    void record(const ReadingRow& reading) {
        store_->addReading(reading.watts, reading.batteryPct, reading.isCharging, reading.cpuUsage);
        model_.addReading(clock_.time, reading);
    }

    void openAgain() {
        store_.reset();
        store_.emplace(folder_.path(), clock_, HistoryAccess::recording);
        model_.restart();
    }

    void compareAnswers() {
        for (const auto range : allTimeRanges) {
            const auto expected = model_.loadData(range, clock_.time);
            const auto answer = store_->loadData(range);
            EXPECT_TRUE(equal(answer.points, expected.points)) << label(range);
            EXPECT_TRUE(equal(answer.avg, expected.avg)) << label(range) << answer.avg << expected.avg;
            EXPECT_TRUE(equal(answer.min, expected.min)) << label(range) << answer.min << expected.min;
            EXPECT_TRUE(equal(answer.max, expected.max)) << label(range) << answer.max << expected.max;
        }
        const double today = model_.todayWh(clock_.time, clock_.dayStart);
        EXPECT_TRUE(equal(store_->todayWh(), today)) << store_->todayWh() << " Wh instead of " << today;
    }

    void compareTables() const {
        const auto present = Database(historyFile(folder_.path())).tables();
        EXPECT_EQ(present.readings, model_.tables().readings);
        EXPECT_TRUE(equal(present.minutes, model_.tables().minutes));
        EXPECT_TRUE(equal(present.hours, model_.tables().hours));
    }

    Chance chance_;
    TemporaryFolder folder_;
    SetClock clock_;
    HistoryModel model_;
    std::optional<HistoryStore> store_{std::in_place, folder_.path(), clock_, HistoryAccess::recording};
};

TEST(RandomHistories, AreAsTheModelSays) {
    for (unsigned seed = 1; seed <= 300 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        constexpr int readings = 60;
        RandomHistory(seed).live(readings);
    }
}

TEST(RandomHistories, OfManyReadingsAreAsTheModelSays) {
    RandomHistory history(0);
    for (int episode = 0; episode < 6; ++episode) {
        history.liveQuietly();
        history.live(5);
    }
}

} // namespace
} // namespace quelby
