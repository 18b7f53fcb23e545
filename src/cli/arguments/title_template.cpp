#include "cli/arguments/title_template.h"

#include <algorithm>
#include <array>
#include <utility>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "base/utf8.h"

namespace quelby::cli {

namespace {

using Named = std::pair<std::string_view, TitleFigure>;

constexpr std::array figures{
    Named("watts", TitleFigure::watts), Named("percent", TitleFigure::percent),
    Named("time", TitleFigure::time),   Named("state", TitleFigure::state),
    Named("rate", TitleFigure::rate),   Named("health", TitleFigure::health),
    Named("cpu", TitleFigure::cpu),     Named("temperature", TitleFigure::temperature),
    Named("volts", TitleFigure::volts), Named("today", TitleFigure::today),
    Named("limit", TitleFigure::limit), Named("title", TitleFigure::title)};

TitleFigure figureNamed(std::string_view name) {
    const auto* const found =
        std::find_if(figures.begin(), figures.end(), [&](const Named& named) { return named.first == name; });
    if (found == figures.end()) {
        throw CLI::ValidationError(fmt::format("--template knows no \"{{{}}}\", but {}",
                                               printable(std::string(name)), knownTitleFigures()));
    }
    return found->second;
}

} // namespace

std::string knownTitleFigures() {
    std::string names;
    for (const auto& [name, figure] : figures) {
        names += (names.empty() ? "" : ", ") + std::string(name);
    }
    return names;
}

TitleTemplate parseTitleTemplate(std::string_view text) {
    TitleTemplate pieces(1);
    for (std::size_t place = 0; place < text.size(); ++place) {
        const char letter = text[place];
        const bool isBrace = letter == '{' || letter == '}';
        if (!isBrace || (place + 1 < text.size() && text[place + 1] == letter)) {
            pieces.back().text += letter;
            place += isBrace ? 1 : 0;
            continue;
        }
        const auto end = text.find('}', place);
        if (letter == '}' || end == std::string_view::npos) {
            throw CLI::ValidationError("--template has a single brace; two of them stand for one");
        }
        pieces.back().figure = figureNamed(text.substr(place + 1, end - place - 1));
        pieces.back().hasFigure = true;
        pieces.emplace_back();
        place = end;
    }
    return pieces;
}

} // namespace quelby::cli
