// Where the curves of both charts run, and what the pointer finds on them. Positions are in points, from the
// upper left corner.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quelby {

struct ChartSize {
    double width = 0;
    double height = 0;
};

struct ChartPoint {
    double x = 0;
    double y = 0;

    bool operator==(const ChartPoint&) const = default;
};

// From the smallest to the largest value that is finite, at least 0.1 apart; from 0 to 1 where there are
// none.
class ChartScale {
public:
    explicit ChartScale(const std::vector<double>& values);

    [[nodiscard]] double minimum() const { return minimum_; }

    [[nodiscard]] double maximum() const { return maximum_; }

    // 0 at the bottom of the scale, 1 at its top. A value that is no number lies at the bottom.
    [[nodiscard]] double normalised(double value) const;

private:
    double minimum_ = 0;
    double maximum_ = 1;
};

// The sample under the pointer, x points from the chart's left edge; nothing where there are no samples.
[[nodiscard]] std::optional<std::size_t> hoverIndex(double x, std::size_t count);

// What is shown of the sample under the pointer: the sample's own place, and a label near it.
struct HoverReadOut {
    ChartPoint point;
    std::string label;
    ChartPoint labelCentre;

    bool operator==(const HoverReadOut&) const = default;
};

// What a label keeps free to both sides, and how far it is above its point, in a chart as wide as the dashboard; in points.
inline constexpr double labelMargin = 60;
inline constexpr double labelAbove = 20;

// The label's centre above the point: kept away from both sides of the chart by the margin, where the left
// one wins in a chart that is too narrow for both, and never above its ceiling.
[[nodiscard]] ChartPoint labelCentre(ChartPoint point, double width, double margin, double above);

} // namespace quelby
