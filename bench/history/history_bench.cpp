// What the history costs when its tables are full: 2 hours of readings, 48 hours of minutes and 30 days of
// hours. CPU time, medians, each beside the least that SQLite could do for the same purpose.
#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "briefly.h"
#include "history/history_file.h"
#include "history/history_store.h"
#include "history/sqlite/statement.h"
#include "history/support/set_clock.h"
#include "support/temporary_folder.h"

namespace {

using namespace quelby;

constexpr double tick = 3; // seconds
constexpr int ticksOfAMinute = 20;

double cpuMicroseconds() {
    struct timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

template <typename Action>
double costOf(const Action& action) {
    const double before = cpuMicroseconds();
    action();
    return cpuMicroseconds() - before;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

template <typename Action>
double medianCostOf(int runs, const Action& action) {
    std::vector<double> costs;
    for (int run = 0; run < runs; ++run) {
        costs.push_back(costOf(action));
    }
    return median(std::move(costs));
}

// A laptop's month, all of it at once.
std::string fullTables(double now) {
    const auto rows = [](const char* table, const char* columns, const char* values, int count, int step,
                         std::int64_t last) {
        return fmt::format(
            "WITH RECURSIVE row(n) AS (VALUES(0) UNION ALL SELECT n + 1 FROM row WHERE n < {}) "
            "INSERT INTO {} ({}) SELECT {} - n * {}, 10 + n % 17, 50{} FROM row;",
            count - 1, table, columns, last, step, values);
    };
    const auto last = static_cast<std::int64_t>(now);
    return rows("readings", "timestamp, watts, battery_pct, is_charging, cpu_usage", ", 0, 25.0", 2400, 3,
                last) +
           rows("minute_avg", "timestamp, watts, battery_pct", "", 2880, 60, last / 60 * 60) +
           rows("hour_avg", "timestamp, watts, battery_pct", "", 720, 3600, last / 3600 * 3600);
}

class History {
public:
    // Each figure is the median of so many runs.
    explicit History(int runs) : runs_(runs) {
        sqlite3* handle = nullptr;
        if (sqlite3_open(historyFile(folder_.path()).c_str(), &handle) != SQLITE_OK ||
            sqlite3_exec(handle, fullTables(clock_.time).c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
            fmt::print(stderr, "no history can be made: {}\n", sqlite3_errmsg(handle));
            std::exit(EXIT_FAILURE);
        }
        bare_.reset(handle);
        execute("PRAGMA synchronous=NORMAL");
    }

    // A reading in its turn, which may aggregate.
    double costOfReading() {
        clock_.time += tick;
        return costOf([&] { store_.addReading(12.5, 79, false, 25.0); });
    }

    [[nodiscard]] double costOfCurve(TimeRange range) {
        return medianCostOf(runs_, [&] { static_cast<void>(store_.loadData(range)); });
    }

    [[nodiscard]] double costOfToday() {
        return medianCostOf(runs_, [&] { static_cast<void>(store_.todayWh()); });
    }

    [[nodiscard]] double now() const { return clock_.time; }

    // Steps through all rows of a query that is prepared anew each time.
    [[nodiscard]] double costOfQuery(const std::string& query) {
        return medianCostOf(runs_, [&] {
            Statement statement(bare_.get(), query);
            while (statement.step()) {
                static_cast<void>(statement.number(0));
            }
        });
    }

    [[nodiscard]] double costOfKeptInsertion() {
        sqlite3_stmt* insertion = nullptr;
        sqlite3_prepare_v2(bare_.get(), "INSERT OR REPLACE INTO readings VALUES (?, 12.5, 79, 0, 25.0)", -1,
                           &insertion, nullptr);
        auto second = static_cast<std::int64_t>(clock_.time);
        const double cost = medianCostOf(runs_, [&] {
            sqlite3_bind_int64(insertion, 1, ++second);
            sqlite3_step(insertion);
            sqlite3_reset(insertion);
        });
        sqlite3_finalize(insertion);
        execute(
            fmt::format("DELETE FROM readings WHERE timestamp > {}", static_cast<std::int64_t>(clock_.time)));
        return cost;
    }

private:
    void execute(const std::string& script) {
        sqlite3_exec(bare_.get(), script.c_str(), nullptr, nullptr, nullptr);
    }

    int runs_;
    TemporaryFolder folder_;
    SetClock clock_;
    HistoryStore store_{folder_.path(), clock_, HistoryAccess::recording};
    Connection bare_;
};

struct Baseline {
    const char* name;
    double microseconds;
};

void print(const std::string& name, double cost, double limit, const Baseline& baseline) {
    fmt::print("{:<20} {:>9.1f} {:>9.0f} {:>11.1f} {:>6.2f}  {}\n", name, cost, limit, baseline.microseconds,
               cost / baseline.microseconds, baseline.name);
}

void printReadings(History& history) {
    static_cast<void>(history.costOfReading()); // a store's first one always aggregates
    std::vector<double> readings;
    std::vector<double> aggregations;
    for (int tickNumber = 1; tickNumber <= 61 * ticksOfAMinute; ++tickNumber) {
        const bool aggregates = tickNumber % ticksOfAMinute == 0;
        (aggregates ? aggregations : readings).push_back(history.costOfReading());
    }
    const double reading = median(std::move(readings));
    print("addReading", reading, 100, {"the insertion, prepared once", history.costOfKeptInsertion()});
    const double scans = history.costOfQuery("SELECT AVG(watts), AVG(battery_pct) FROM readings") +
                         history.costOfQuery("SELECT AVG(watts), AVG(battery_pct) FROM minute_avg");
    print("aggregation", median(std::move(aggregations)) - reading, 15'000,
          {"two means over all rows", scans});
}

void printQueries(History& history) {
    const std::vector<std::pair<TimeRange, const char*>> tables = {{TimeRange::thirtyMinutes, "readings"},
                                                                   {TimeRange::oneHour, "readings"},
                                                                   {TimeRange::twentyFourHours, "minute_avg"},
                                                                   {TimeRange::sevenDays, "hour_avg"}};
    const Baseline nothing{"SELECT 1", history.costOfQuery("SELECT 1")};
    for (const auto& [range, table] : tables) {
        const auto rows = fmt::format("SELECT watts FROM {} WHERE timestamp > {}", table,
                                      static_cast<std::int64_t>(history.now() - seconds(range)));
        print(fmt::format("loadData {}", label(range)), history.costOfCurve(range), 3000,
              {"a walk over these rows", history.costOfQuery(rows)});
    }
    const double today = history.costOfToday();
    print("todayWh", today, 2000,
          {"a sum over all readings", history.costOfQuery("SELECT SUM(watts) FROM readings")});
    print("todayWh", today, 2000, nothing);
}

} // namespace

int main(int argc, char** argv) {
    History history(isBrief(argc, argv) ? 1 : 301);
    fmt::print("{:<20} {:>9} {:>9} {:>11} {:>6}  {}\n", "", "us", "limit us", "baseline us", "ratio",
               "baseline");
    printReadings(history);
    printQueries(history);
}
