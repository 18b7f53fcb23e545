#include "cli/output/energy_output.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "base/arithmetic.h"
#include "base/json_value.h"
#include "base/time_of_day.h"
#include "base/utf8.h"
#include "cli/arguments/values.h"
#include "cli/output/csv_field.h"
#include "cli/output/harmless_json.h"
#include "cli/terminal/layout/block_cells.h"
#include "cli/terminal/layout/display_width.h"
#include "ui/presentation/energy/energy_words.h"

namespace quelby::cli {

namespace {

using Json = nlohmann::ordered_json;

constexpr int figureColumns = 19; // "  12.3 Wh   12 %  "
constexpr int mostLabelColumns = 40;

double total(const EnergyOutput& output) {
    double sum = 0;
    for (const auto& row : output.named) {
        sum += row.wattHours;
    }
    for (const auto& row : output.timed) {
        sum += row.wattHours;
    }
    return sum;
}

std::optional<double> shareOfCharge(const EnergyOutput& output, double wattHours) {
    return output.fullCharge ? std::optional(wattHours / *output.fullCharge) : std::nullopt;
}

// Calls visit(row) for each row, whatever they are told apart by.
template <typename Visit>
void forEachRow(const EnergyOutput& output, Visit visit) {
    std::for_each(output.named.begin(), output.named.end(), visit);
    std::for_each(output.timed.begin(), output.timed.end(), visit);
}

Json identity(const NamedEnergy& row) {
    return {{"name", row.name}};
}

Json identity(const TimedEnergy& row) {
    return {{"start", row.start}};
}

std::string energyAsJson(const EnergyOutput& output) {
    auto rows = Json::array();
    forEachRow(output, [&](const auto& row) {
        auto object = identity(row);
        object["wattHours"] = row.wattHours;
        object["shareOfCharge"] = orNull(shareOfCharge(output, row.wattHours));
        rows.push_back(std::move(object));
    });
    const Json object{{"range", rawValue(output.range)},
                      {"by", groupingWord(output.by)},
                      {"rows", rows},
                      {"totalWh", total(output)},
                      {"fullChargeWh", orNull(output.fullCharge)}};
    return harmless(object.dump(-1, ' ', false, Json::error_handler_t::replace)) + '\n';
}

std::string field(const NamedEnergy& row) {
    return csvField(printable(row.name)); // CSV has no escapes
}

std::string field(const TimedEnergy& row) {
    return fmt::format("{}", row.start);
}

std::string energyAsCsv(const EnergyOutput& output) {
    const bool named = output.by == EnergyGrouping::app || output.by == EnergyGrouping::component;
    std::string text = fmt::format("{},watt_hours,share_of_charge\n", named ? "name" : "start");
    forEachRow(output, [&](const auto& row) {
        text += fmt::format("{},{},{}\n", field(row), row.wattHours,
                            csvField(shareOfCharge(output, row.wattHours)));
    });
    return text;
}

std::string rowLabel(const NamedEnergy& row, EnergyGrouping) {
    return printable(row.name);
}

std::string rowLabel(const TimedEnergy& row, EnergyGrouping by) {
    const auto start = static_cast<double>(row.start);
    return by == EnergyGrouping::day ? localDate(start) : localDate(start) + ' ' + hourAndMinute(start);
}

std::string bar(double part, double whole, int columns) {
    const double filled = whole > 0 ? std::clamp(part / whole, 0.0, 1.0) * columns * eighths : 0;
    const auto cells = truncated(std::round(filled));
    std::string text;
    for (std::int64_t i = 0; i < cells / eighths; ++i) {
        text += barCells.back();
    }
    return text + barCells.at(static_cast<std::size_t>(cells % eighths));
}

std::string heading(const EnergyOutput& output) {
    const auto share = chargeShareText(total(output), output.fullCharge);
    return fmt::format("{}: {}{}\n", label(output.range), wattHoursText(total(output)),
                       share.empty() ? "" : fmt::format(", {} of a charge", share));
}

std::string energyAsText(const EnergyOutput& output, int columns) {
    int labels = 0;
    double largest = 0;
    forEachRow(output, [&](const auto& row) {
        labels = std::max(labels, displayWidth(rowLabel(row, output.by)));
        largest = std::max(largest, row.wattHours);
    });
    labels = std::min(labels, mostLabelColumns);
    if (output.named.empty() && output.timed.empty()) {
        return fmt::format("{}: nothing recorded\n", label(output.range));
    }
    std::string text = heading(output);
    forEachRow(output, [&](const auto& row) {
        auto line =
            fmt::format("  {} {:>9}  {:>5}  {}", fitted(rowLabel(row, output.by), labels),
                        wattHoursText(row.wattHours), chargeShareText(row.wattHours, output.fullCharge),
                        bar(row.wattHours, largest, columns - labels - figureColumns - 2));
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    });
    return text;
}

} // namespace

std::string energyInForm(const EnergyOutput& output, OutputForm form, int columns) {
    switch (form) {
    case OutputForm::json:
        return energyAsJson(output);
    case OutputForm::csv:
        return energyAsCsv(output);
    case OutputForm::text:
        return energyAsText(output, columns);
    }
    return {};
}

} // namespace quelby::cli
