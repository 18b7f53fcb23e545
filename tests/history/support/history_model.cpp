#include "history_model.h"

namespace quelby {

namespace {

std::int64_t wholeSeconds(double time) {
    return static_cast<std::int64_t>(time);
}

template <typename Rows>
void dropBefore(Rows& rows, std::int64_t bound) {
    rows.erase(rows.begin(), rows.lower_bound(bound));
}

struct Sum {
    double watts = 0;
    double batteryPct = 0;
    double rows = 0;
};

// Replaces the mean of each period that has rows later than the bound.
template <typename Rows>
void average(const Rows& rows, std::int64_t bound, std::int64_t period, Means& means) {
    std::map<std::int64_t, Sum> sums;
    for (auto row = rows.upper_bound(bound); row != rows.end(); ++row) {
        auto& sum = sums[row->first - row->first % period];
        sum.watts += row->second.watts;
        sum.batteryPct += static_cast<double>(row->second.batteryPct);
        ++sum.rows;
    }
    for (const auto& [start, sum] : sums) {
        means[start] = {sum.watts / sum.rows, sum.batteryPct / sum.rows};
    }
}

template <typename Rows>
std::vector<HistoryDataPoint> pointsAfter(std::int64_t cutoff, const Rows& rows) {
    std::vector<HistoryDataPoint> points;
    for (const auto& [second, row] : rows) {
        if (second > cutoff) {
            points.push_back({second, row.watts});
        }
    }
    return points;
}

std::vector<HistoryDataPoint> forChart(const std::vector<HistoryDataPoint>& all) {
    if (all.size() < 301) {
        return all;
    }
    std::vector<HistoryDataPoint> some;
    const std::size_t stride = all.size() / 300;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (i % stride == 0 || i == all.size() - 1) {
            some.push_back(all[i]);
        }
    }
    return some;
}

ModelCurve measured(const std::vector<HistoryDataPoint>& points) {
    if (points.empty()) {
        return {};
    }
    ModelCurve curve{points, 0, points[0].watts, points[0].watts};
    for (const auto& point : points) {
        curve.avg += point.watts;
        curve.min = point.watts < curve.min ? point.watts : curve.min;
        curve.max = point.watts > curve.max ? point.watts : curve.max;
    }
    curve.avg /= static_cast<double>(points.size());
    return curve;
}

} // namespace

void HistoryModel::addReading(double now, const ReadingRow& reading) {
    tables_.readings[wholeSeconds(now)] = reading;
    if (now - lastAggregation_ >= 60) {
        lastAggregation_ = now;
        aggregate(now);
    }
}

void HistoryModel::aggregate(double now) {
    const auto twoHoursAgo = wholeSeconds(now - 2 * 3600);
    const auto twoDaysAgo = wholeSeconds(now - 2 * 86400);
    const auto thirtyDaysAgo = wholeSeconds(now - 30 * 86400);
    average(tables_.readings, twoDaysAgo, 60, tables_.minutes);
    average(tables_.minutes, thirtyDaysAgo, 3600, tables_.hours);
    dropBefore(tables_.readings, twoHoursAgo);
    dropBefore(tables_.minutes, twoDaysAgo);
    dropBefore(tables_.hours, thirtyDaysAgo);
}

ModelCurve HistoryModel::loadData(TimeRange range, double now) const {
    switch (range) {
    case TimeRange::thirtyMinutes:
        return measured(forChart(pointsAfter(wholeSeconds(now - 30 * 60), tables_.readings)));
    case TimeRange::oneHour:
        return measured(forChart(pointsAfter(wholeSeconds(now - 60 * 60), tables_.readings)));
    case TimeRange::twentyFourHours:
        return measured(forChart(pointsAfter(wholeSeconds(now - 24 * 3600), tables_.minutes)));
    case TimeRange::sevenDays:
        return measured(forChart(pointsAfter(wholeSeconds(now - 7 * 24 * 3600), tables_.hours)));
    }
    return {};
}

double HistoryModel::todayWh(double now, double dayStart) const {
    const auto midnight = wholeSeconds(dayStart);
    const auto rawStart = wholeSeconds(now - 2 * 3600);
    double wattHours = 0;
    for (const auto& [second, row] : tables_.readings) {
        wattHours += second > midnight ? row.watts * 3 / 3600 : 0;
    }
    for (const auto& [start, row] : tables_.minutes) {
        wattHours += start >= midnight && start < rawStart ? row.watts * 60 / 3600 : 0;
    }
    return wattHours;
}

} // namespace quelby
