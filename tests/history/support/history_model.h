// What a history is to hold and to answer, said a second time: plain maps and loops, no SQL. Tests compare
// the store with it.
#pragma once

#include <vector>

#include "history/history_data_point.h"
#include "history/time_range.h"
#include "tables.h"

namespace quelby {

struct ModelCurve {
    std::vector<HistoryDataPoint> points;
    double avg = 0;
    double min = 0;
    double max = 0;
};

class HistoryModel {
public:
    void addReading(double now, const ReadingRow& reading);

    // The store is opened anew on the same file.
    void restart() { lastAggregation_ = 0; }

    [[nodiscard]] ModelCurve loadData(TimeRange range, double now) const;
    [[nodiscard]] double todayWh(double now, double dayStart) const;

    [[nodiscard]] const Tables& tables() const { return tables_; }

private:
    void aggregate(double now);

    Tables tables_;
    double lastAggregation_ = 0;
};

} // namespace quelby
