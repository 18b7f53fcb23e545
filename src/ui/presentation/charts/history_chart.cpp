#include "ui/presentation/charts/history_chart.h"

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

#include "base/time_of_day.h"

namespace quelby {

namespace {

constexpr double freeAbove = 0.05; // of the height, and as much below

std::vector<double> wattsOf(const std::vector<HistoryDataPoint>& data) {
    std::vector<double> watts;
    watts.reserve(data.size());
    std::transform(data.begin(), data.end(), std::back_inserter(watts),
                   [](const HistoryDataPoint& point) { return point.watts; });
    return watts;
}

class Curve {
public:
    Curve(const std::vector<HistoryDataPoint>& data, ChartSize size)
        : data_(data), size_(size), scale_(wattsOf(data)) {}

    [[nodiscard]] ChartPoint point(std::size_t index) const {
        const auto gaps = static_cast<double>(std::max<std::size_t>(data_.size(), 2) - 1);
        const double height = 1 - scale_.normalised(data_[index].watts);
        return {size_.width * static_cast<double>(index) / gaps,
                size_.height * freeAbove + size_.height * height * (1 - 2 * freeAbove)};
    }

private:
    const std::vector<HistoryDataPoint>& data_;
    ChartSize size_;
    ChartScale scale_;
};

} // namespace

std::vector<ChartPoint> historyCurve(const std::vector<HistoryDataPoint>& data, ChartSize size) {
    const Curve curve(data, size);
    std::vector<ChartPoint> points(data.size());
    for (std::size_t index = 0; index < data.size(); ++index) {
        points[index] = curve.point(index);
    }
    return points;
}

AxisLabels historyAxisLabels(const std::vector<HistoryDataPoint>& data) {
    const ChartScale scale(wattsOf(data));
    return {fmt::format("{:.0f}W", scale.maximum()), fmt::format("{:.0f}W", scale.minimum())};
}

std::optional<HoverReadOut> historyReadOut(const std::vector<HistoryDataPoint>& data, ChartSize size,
                                           std::size_t index) {
    if (index >= data.size()) {
        return std::nullopt;
    }
    const auto point = Curve(data, size).point(index);
    return HoverReadOut{.point = point,
                        .label =
                            fmt::format("{:.1f}W  {}", data[index].watts, hourAndMinute(data[index].date())),
                        .labelCentre = labelCentre(point, size.width, labelMargin, labelAbove)};
}

} // namespace quelby
