#include "cli/output/filled_template.h"

#include <fmt/format.h>

#include "base/utf8.h"
#include "ui/presentation/text/cycle_line.h"
#include "ui/presentation/text/menu_bar_title.h"

namespace quelby::cli {

namespace {

std::string figureOfBattery(TitleFigure figure, const PublishedFields& fields) {
    if (!fields.hasBattery) {
        return {};
    }
    switch (figure) {
    case TitleFigure::percent:
        return fmt::format("{}", fields.batteryPercent.get());
    case TitleFigure::time:
        return printable(fields.predictedTime.get());
    case TitleFigure::rate:
        return printable(fields.batteryRateStr.get());
    case TitleFigure::health:
        return fmt::format("{}", fields.batteryHealth.get());
    case TitleFigure::temperature:
        return fmt::format("{:.1f}", fields.batteryTemp.get());
    case TitleFigure::volts:
        return fmt::format("{:.2f}", fields.voltage.get());
    default:
        return {};
    }
}

std::string figureText(TitleFigure figure, const PublishedFields& fields) {
    switch (figure) {
    case TitleFigure::watts:
        return fmt::format("{:.0f}", fields.totalPower.get());
    case TitleFigure::state:
        return std::string(batteryState(fields));
    case TitleFigure::cpu:
        return fmt::format("{:.0f}", fields.cpuUsage.get());
    case TitleFigure::today:
        return fmt::format("{:.1f}", fields.todayWh.get());
    case TitleFigure::limit:
        return fields.chargeLimitEnabled ? fmt::format("{:.0f}", fields.chargeLimitPercent.get()) : "";
    case TitleFigure::title: {
        const auto title = menuBarTitle(fields, fields.menuBarDisplay);
        return title.empty() ? title : title.substr(1);
    }
    default:
        return figureOfBattery(figure, fields);
    }
}

} // namespace

std::string filledTemplate(const TitleTemplate& pieces, const PublishedFields& fields) {
    std::string line;
    for (const auto& piece : pieces) {
        line += piece.text;
        line += piece.hasFigure ? figureText(piece.figure, fields) : "";
    }
    return line;
}

} // namespace quelby::cli
