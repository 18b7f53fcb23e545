#include "ui/presentation/charts/sparkline.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/cycle_interval.h"

namespace quelby {

namespace {

constexpr double sparklineLabelMargin = 50; // points
constexpr double sparklineLabelAbove = 18;  // points

ChartPoint pointOf(const std::vector<double>& samples, const ChartScale& scale, ChartSize size,
                   std::size_t index) {
    const auto gaps = static_cast<double>(std::max<std::size_t>(samples.size() - 1, 1));
    return {size.width * static_cast<double>(index) / gaps,
            size.height * (1 - scale.normalised(samples[index]))};
}

std::string ageText(std::size_t seconds) {
    return seconds == 0 ? "now" : fmt::format("{}s ago", seconds);
}

} // namespace

std::vector<ChartPoint> sparkline(const std::vector<double>& samples, ChartSize size) {
    const ChartScale scale(samples);
    std::vector<ChartPoint> points(samples.size());
    for (std::size_t index = 0; index < samples.size(); ++index) {
        points[index] = pointOf(samples, scale, size, index);
    }
    return points;
}

std::optional<NewestDot> newestDot(const std::vector<double>& samples, ChartSize size) {
    if (samples.empty()) {
        return std::nullopt;
    }
    const double y = pointOf(samples, ChartScale(samples), size, samples.size() - 1).y;
    return NewestDot{{size.width, y}, Color::power(samples.back())};
}

std::optional<HoverReadOut> sparklineReadOut(const std::vector<double>& samples, ChartSize size,
                                             std::size_t index) {
    if (index >= samples.size()) {
        return std::nullopt;
    }
    const auto point = pointOf(samples, ChartScale(samples), size, index);
    const auto age = (samples.size() - 1 - index) * static_cast<std::size_t>(cycleInterval.count());
    return HoverReadOut{.point = point,
                        .label = fmt::format("{:.1f}W  {}", samples[index], ageText(age)),
                        .labelCentre =
                            labelCentre(point, size.width, sparklineLabelMargin, sparklineLabelAbove)};
}

} // namespace quelby
