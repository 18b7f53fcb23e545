// Every zone of the system's database from 1970 to 2040, against a second computation: the zone's periods of
// one offset each, found by probes, and in them the earliest moment that bears the date.
#include "platform/local_day.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/time_zone.h"

namespace quelby {
namespace {

using Seconds = std::int64_t;

constexpr Seconds day = Seconds{24} * 60 * 60;
constexpr Seconds week = 7 * day;
constexpr Seconds probe = 3 * day;         // no zone changes twice within
constexpr Seconds end2040 = 2'240'524'800; // 2041-01-01 00:00 UTC

// In [from, to) the clocks show `offset` more than UTC.
struct Period {
    Seconds from;
    Seconds to;
    Seconds offset;
};

Seconds offsetAt(Seconds moment) {
    const auto time = static_cast<std::time_t>(moment);
    std::tm local{};
    localtime_r(&time, &local);
    return local.tm_gmtoff;
}

// The moment of the change between two that differ.
Seconds changeBetween(Seconds before, Seconds after) {
    const auto offset = offsetAt(before);
    while (after - before > 1) {
        const auto middle = (before + after) / 2;
        (offsetAt(middle) == offset ? before : after) = middle;
    }
    return after;
}

std::vector<Period> periodsOfTheZone() {
    std::vector<Period> periods{{-probe, end2040, offsetAt(-probe)}};
    for (Seconds moment = 0; moment < end2040; moment += probe) {
        if (offsetAt(moment) != periods.back().offset) {
            const auto change = changeBetween(moment - probe, moment);
            periods.back().to = change;
            periods.push_back({change, end2040, offsetAt(change)});
        }
    }
    return periods;
}

// Days since 1970 by the calendar, rounded down.
Seconds dateOf(Seconds shown) {
    return shown >= 0 ? shown / day : -((-shown + day - 1) / day);
}

Seconds earliestOfItsDate(const std::vector<Period>& periods, std::size_t around, Seconds moment) {
    const auto date = dateOf(moment + offsetAt(moment));
    auto earliest = moment;
    for (auto i = around < 2 ? 0 : around - 2; i < std::min(around + 3, periods.size()); ++i) {
        const auto& period = periods[i];
        const auto first = std::max(period.from, date * day - period.offset);
        if (first < period.to && dateOf(first + period.offset) == date) {
            earliest = std::min(earliest, first);
        }
    }
    return earliest;
}

// One name for each set of rules.
std::vector<std::string> zones() {
    const std::filesystem::path database = "/usr/share/zoneinfo";
    std::vector<std::string> names;
    std::set<std::string> rules;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(database)) {
        const auto name = entry.path().lexically_relative(database).string();
        // The one counts leap seconds, which no computer's clock does; the other repeats all.
        if (!entry.is_regular_file() || name.starts_with("right/") || name.starts_with("posix/")) {
            continue;
        }
        std::ifstream file(entry.path(), std::ios::binary);
        std::string content(std::istreambuf_iterator<char>(file), {});
        if (content.starts_with("TZif") && rules.insert(std::move(content)).second) {
            names.push_back(name);
        }
    }
    return names;
}

// The days that a change may touch, and the seconds beside it and beside the start of its day.
std::vector<Seconds> momentsAround(Seconds change) {
    std::vector<Seconds> moments;
    for (auto moment = change - 2 * day; moment <= change + 2 * day; moment += day / 2) {
        moments.push_back(moment);
    }
    const auto start = static_cast<Seconds>(startOfLocalDay(static_cast<double>(change)));
    for (const auto edge : {change, start, start + day}) {
        moments.insert(moments.end(), {edge - 1800, edge - 1, edge, edge + 1, edge + 1800});
    }
    return moments;
}

long misplacedStarts(const std::string& zone) {
    const TimeZone set((":" + zone).c_str());
    const auto periods = periodsOfTheZone();
    std::set<std::array<Seconds, 3>> kinds;
    long misplaced = 0;
    for (std::size_t i = 1; i < periods.size(); ++i) {
        // Year after year the clocks change by the same at the same hour.
        const auto& [from, to, offset] = periods[i];
        const auto before = periods[i - 1].offset;
        const bool alone = std::min(from - periods[i - 1].from, to - from) > week;
        if (alone && !kinds.insert({before, offset, (from + before) % day}).second) {
            continue;
        }
        for (const auto moment : momentsAround(periods[i].from)) {
            const auto start = startOfLocalDay(static_cast<double>(moment));
            const auto expected = earliestOfItsDate(periods, i, moment);
            if (start != static_cast<double>(expected) && misplaced++ == 0) {
                ADD_FAILURE() << zone << " at " << moment << ": " << start << ", not " << expected;
            }
        }
    }
    return misplaced;
}

TEST(StartOfLocalDay, IsTheFirstMomentOfItsDateInEveryZone) {
    const auto names = zones();
    ASSERT_GT(names.size(), 300) << "the system's database of time zones is missing";
    for (const auto& zone : names) {
        EXPECT_EQ(misplacedStarts(zone), 0) << zone;
    }
}

} // namespace
} // namespace quelby
