#include "cli/output/history_output.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "base/arithmetic.h"
#include "cli/terminal/layout/block_cells.h"

namespace quelby::cli {

namespace {

constexpr std::int64_t curveRows = 8;
constexpr int scaleColumns = 9; // "  12.3 W " at the left of the curve

// The mean power of each column, none where nothing was recorded.
std::vector<std::optional<double>> columnMeans(const HistoryView& view, int columns) {
    struct Column {
        double sum = 0;
        int points = 0;
    };

    std::vector<Column> sums(static_cast<std::size_t>(columns));
    const double start = view.now - seconds(view.range);
    for (const auto& point : view.result.points) {
        const double position = (point.date() - start) / seconds(view.range) * columns;
        auto& column =
            sums[static_cast<std::size_t>(std::clamp<std::int64_t>(truncated(position), 0, columns - 1))];
        column.sum += point.watts;
        ++column.points;
    }
    std::vector<std::optional<double>> means;
    means.reserve(sums.size());
    for (const auto& column : sums) {
        means.push_back(column.points == 0 ? std::nullopt : std::optional(column.sum / column.points));
    }
    return means;
}

// The part of a column in one row, where rows count from the bottom and the top of all is `most`.
std::string_view cell(std::optional<double> mean, std::int64_t row, double most) {
    if (!mean || most <= 0) {
        return columnCells.front();
    }
    const auto filled = truncated(std::round(*mean / most * static_cast<double>(curveRows) * eighths));
    const auto inRow = std::clamp<std::int64_t>(difference(filled, row * eighths), row == 0 ? 1 : 0, eighths);
    return columnCells.at(static_cast<std::size_t>(inRow));
}

std::string curveLine(const HistoryView& view, int columns) {
    const auto means = columnMeans(view, columns - scaleColumns);
    std::string text;
    for (auto row = curveRows - 1; row >= 0; --row) {
        const bool labelled = row == curveRows - 1 || row == 0;
        const double label = row == 0 ? 0 : view.result.max;
        std::string line = labelled ? fmt::format("{:>6.1f} W ", label) : std::string(scaleColumns, ' ');
        for (const auto& mean : means) {
            line += cell(mean, row, view.result.max);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    }
    return text;
}

} // namespace

std::string historyAsJson(const HistoryView& view) {
    nlohmann::ordered_json points = nlohmann::ordered_json::array();
    for (const auto& point : view.result.points) {
        points.push_back({{"id", point.id}, {"watts", point.watts}});
    }
    const nlohmann::ordered_json object{{"range", rawValue(view.range)}, {"points", points},
                                        {"avg", view.result.avg},        {"min", view.result.min},
                                        {"max", view.result.max},        {"todayWh", view.todayWh}};
    return object.dump() + '\n';
}

std::string historyAsCsv(const HistoryView& view) {
    std::string text = "timestamp,watts\n";
    for (const auto& point : view.result.points) {
        text += fmt::format("{},{}\n", point.id, point.watts);
    }
    return text;
}

std::string historyAsText(const HistoryView& view, int columns) {
    const auto& [points, avg, min, max] = view.result;
    const auto today = fmt::format("today {:.1f} Wh\n", view.todayWh);
    if (points.empty()) {
        return fmt::format("{}: nothing recorded   {}", label(view.range), today);
    }
    return curveLine(view, columns) + fmt::format("{}: average {:.1f} W   min {:.1f} W   max {:.1f} W   {}",
                                                  label(view.range), avg, min, max, today);
}

} // namespace quelby::cli
