#include "ui/presentation/energy/health_chart.h"

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

#include "base/time_of_day.h"

namespace quelby {

namespace {

constexpr double freeAbove = 0.05; // of the height, and as much below
constexpr double halfADay =
    43'200; // seconds: a day of UTC has the same date at its noon in nearly every zone

std::vector<double> healthOf(const std::vector<HealthPoint>& days) {
    std::vector<double> health;
    std::transform(days.begin(), days.end(), std::back_inserter(health),
                   [](const HealthPoint& point) { return point.health; });
    return health;
}

class Curve {
public:
    Curve(const std::vector<HealthPoint>& days, ChartSize size)
        : first_(days.empty() ? 0 : days.front().day)
        , length_(days.empty() ? 0 : days.back().day - first_)
        , size_(size)
        , scale_(healthOf(days)) {}

    [[nodiscard]] ChartPoint at(const HealthPoint& point) const {
        const double position = length_ > 0 ? (point.day - first_) / length_ : 0;
        const double height = 1 - scale_.normalised(point.health);
        return {size_.width * position,
                size_.height * freeAbove + size_.height * height * (1 - 2 * freeAbove)};
    }

private:
    double first_;
    double length_; // seconds
    ChartSize size_;
    ChartScale scale_;
};

std::vector<ChartPoint> placed(const std::vector<HealthPoint>& points, const Curve& curve) {
    std::vector<ChartPoint> places;
    std::transform(points.begin(), points.end(), std::back_inserter(places),
                   [&](const HealthPoint& point) { return curve.at(point); });
    return places;
}

} // namespace

std::vector<ChartPoint> healthCurve(const std::vector<HealthPoint>& days, ChartSize size) {
    return placed(days, Curve(days, size));
}

std::vector<ChartPoint> healthLine(const std::vector<HealthPoint>& line, const std::vector<HealthPoint>& days,
                                   ChartSize size) {
    return placed(line, Curve(days, size));
}

HealthLabels healthLabels(const std::vector<HealthPoint>& days) {
    const ChartScale scale(healthOf(days));
    return {fmt::format("{:.0f}%", scale.maximum()), fmt::format("{:.0f}%", scale.minimum())};
}

std::optional<HoverReadOut> healthReadOut(const std::vector<HealthPoint>& days, ChartSize size,
                                          std::size_t index) {
    if (index >= days.size()) {
        return std::nullopt;
    }
    const auto point = Curve(days, size).at(days[index]);
    return HoverReadOut{
        .point = point,
        .label = fmt::format("{:.1f}%  {}", days[index].health, localDate(days[index].day + halfADay)),
        .labelCentre = labelCentre(point, size.width, labelMargin, labelAbove)};
}

} // namespace quelby
