#include "cli/terminal/layout/block_charts.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "cli/terminal/layout/block_cells.h"
#include "ui/presentation/charts/chart_scale.h"

namespace quelby::cli {

namespace {

std::string repeated(const char* cell, int count) {
    std::string cells;
    for (int i = 0; i < count; ++i) {
        cells += cell;
    }
    return cells;
}

const Style trackStyle{.color = ColorName::secondary};

// The mean of the values that fall into the column, or the one value that covers it.
double valueOf(const std::vector<double>& values, int column, int columns) {
    const auto index = [&](int edge) {
        return static_cast<std::size_t>(edge) * values.size() / static_cast<std::size_t>(columns);
    };
    const auto from = index(column);
    const auto to = std::max(index(column + 1), from + 1);
    const auto first = values.begin() + static_cast<std::ptrdiff_t>(from);
    const auto last = values.begin() + static_cast<std::ptrdiff_t>(to);
    return std::accumulate(first, last, 0.0) / static_cast<double>(to - from);
}

} // namespace

Line barLine(const Bar& bar, int columns) {
    columns = std::max(columns, 0);
    const auto filled = static_cast<int>(std::lround(bar.fraction * columns * eighths));
    const int whole = filled / eighths;
    const auto* const part = barCells.at(static_cast<std::size_t>(filled % eighths));
    const int rest = columns - whole - (filled % eighths > 0 ? 1 : 0);
    return {{repeated(barCells.back(), whole) + part, {.color = bar.color}},
            {repeated("·", rest), trackStyle}};
}

Line sliderLine(double fraction, Color color, int columns) {
    const int room = std::max(columns - 1, 0);
    const auto before = static_cast<int>(std::lround(std::clamp(fraction, 0.0, 1.0) * room));
    return {{repeated("━", before) + "●", {.color = color}}, {repeated("─", room - before), trackStyle}};
}

Block curve(const std::vector<double>& values, int columns, int rows) {
    Block block(static_cast<std::size_t>(rows));
    const ChartScale scale(values);
    for (int column = 0; column < columns && !values.empty(); ++column) {
        // One eighth at the least, so that the lowest value is seen, too.
        const double height = scale.normalised(valueOf(values, column, columns));
        const auto filled = 1 + static_cast<int>(std::lround(height * (rows * eighths - 1)));
        const double position = columns > 1 ? static_cast<double>(column) / (columns - 1) : 0;
        for (int row = 0; row < rows; ++row) {
            const int above = (rows - 1 - row) * eighths; // what the rows below it hold
            const auto cell = static_cast<std::size_t>(std::clamp(filled - above, 0, eighths));
            block[static_cast<std::size_t>(row)].push_back({columnCells.at(cell), {.gradient = position}});
        }
    }
    return block;
}

} // namespace quelby::cli
