// A line of a person's own, such as "{watts} W, {percent} %", for status bars that have no format here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quelby::cli {

// What can stand in braces.
enum class TitleFigure {
    watts,
    percent,
    time,
    state,
    rate,
    health,
    cpu,
    temperature,
    volts,
    today,
    limit,
    title
};

struct TitlePiece {
    std::string text;     // as it stands, before the figure
    TitleFigure figure{}; // which counts only where there is one
    bool hasFigure = false;
};

using TitleTemplate = std::vector<TitlePiece>;

// Two braces stand for one. Throws a CLI::ValidationError that lists the known names, or names the open brace.
[[nodiscard]] TitleTemplate parseTitleTemplate(std::string_view text);

// As in "watts, percent, time".
[[nodiscard]] std::string knownTitleFigures();

} // namespace quelby::cli
