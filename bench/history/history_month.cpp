// A month of readings, one every 3 seconds, and two days more: how large the tables and the files become.
// Ends with status 1 where a table or a file outgrows its bound. The disk is not waited for.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
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

constexpr int readingsOfADay = 28'800;

struct Sizes {
    std::int64_t readings = 0;
    std::int64_t minutes = 0;
    std::int64_t hours = 0;
    std::uintmax_t databaseBytes = 0;
    std::uintmax_t logBytes = 0;
};

std::int64_t rows(sqlite3* connection, const char* table) {
    Statement count(connection, fmt::format("SELECT COUNT(*) FROM {}", table));
    return count.step() ? count.integer(0) : -1;
}

Sizes sizes(const std::filesystem::path& file) {
    const auto connection = openForReading(file);
    if (!connection) {
        fmt::print(stderr, "{}\n", connection.error().sentence);
        std::exit(EXIT_FAILURE);
    }
    return {rows(connection->get(), "readings"), rows(connection->get(), "minute_avg"),
            rows(connection->get(), "hour_avg"), std::filesystem::file_size(file),
            std::filesystem::file_size(file.string() + "-wal")};
}

// Both ends of the 2 hours, 48 hours and 30 days included, and what came since the last pruning.
bool withinBounds(const Sizes& evening) {
    return evening.readings <= 2401 + 20 && evening.minutes <= 2881 + 1 && evening.hours <= 721 + 1;
}

// After the first days only the hours become more, which are a few pages.
bool staysSmall(const std::vector<Sizes>& evenings) {
    constexpr std::uintmax_t page = 536; // in the log; 512 in the database
    constexpr std::uintmax_t hoursBytes = 80 * page;
    constexpr std::uintmax_t log = 1100 * page; // it is copied back at a thousand pages
    const auto settled = evenings.at(3).databaseBytes + hoursBytes;
    return std::all_of(evenings.begin(), evenings.end(), [&](const Sizes& evening) {
        return withinBounds(evening) && evening.databaseBytes <= settled && evening.logBytes <= log;
    });
}

void liveADay(HistoryStore& store, SetClock& clock) {
    for (int reading = 0; reading < readingsOfADay; ++reading) {
        store.addReading(10 + reading % 17, 50, false, 25.0);
        clock.time += 3;
    }
}

} // namespace

int main(int argc, char** argv) {
    const int days = isBrief(argc, argv) ? 4 : 32;
    const TemporaryFolder folder;
    SetClock clock;
    HistoryStore store(folder.path(), clock, HistoryAccess::recording);
    const auto start = std::chrono::steady_clock::now();
    fmt::print("{:>4} {:>9} {:>8} {:>6} {:>14} {:>10}\n", "day", "readings", "minutes", "hours",
               "database bytes", "log bytes");
    std::vector<Sizes> evenings;
    for (int evening = 1; evening <= days; ++evening) {
        liveADay(store, clock);
        const auto now = evenings.emplace_back(sizes(historyFile(folder.path())));
        fmt::print("{:>4} {:>9} {:>8} {:>6} {:>14} {:>10}\n", evening, now.readings, now.minutes, now.hours,
                   now.databaseBytes, now.logBytes);
    }
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    fmt::print("{:.1f} s\n", taken.count());
    return staysSmall(evenings) ? EXIT_SUCCESS : EXIT_FAILURE;
}
