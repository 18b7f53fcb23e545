#include "cli/terminal/device/terminal_colors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include <fmt/format.h>

namespace quelby::cli {

namespace {

struct Rgb {
    int red;
    int green;
    int blue;
};

// Of middling lightness throughout: nobody knows whether the terminal is light or dark.
Rgb rgb(ColorName name) {
    switch (name) {
    case ColorName::green:
        return {52, 168, 83};
    case ColorName::yellow:
        return {201, 152, 0};
    case ColorName::orange:
        return {232, 112, 34};
    case ColorName::red:
        return {226, 72, 61};
    case ColorName::blue:
    case ColorName::accent:
        return {66, 133, 236};
    case ColorName::purple:
        return {166, 98, 214};
    case ColorName::cyan:
        return {18, 158, 184};
    case ColorName::primary:
    case ColorName::secondary:
    case ColorName::white:
        break;
    }
    return {128, 128, 132};
}

// The sixteen colours that every terminal has, in its user's own choice of shades.
std::string_view basicSequence(ColorName name) {
    switch (name) {
    case ColorName::green:
        return "32";
    case ColorName::yellow:
        return "93";
    case ColorName::orange:
        return "33";
    case ColorName::red:
        return "31";
    case ColorName::blue:
    case ColorName::accent:
        return "34";
    case ColorName::purple:
        return "35";
    case ColorName::cyan:
        return "36";
    case ColorName::secondary:
        return "2";
    case ColorName::primary:
    case ColorName::white:
        break;
    }
    return {};
}

// The stops of the curves' gradient, at equal distances.
constexpr std::array gradientStops{ColorName::green, ColorName::yellow, ColorName::orange, ColorName::red};

Rgb gradientColor(double position) {
    const double place = std::clamp(position, 0.0, 1.0) * (gradientStops.size() - 1);
    const auto stop = std::min(static_cast<std::size_t>(place), gradientStops.size() - 2);
    const double share = place - static_cast<double>(stop);
    const auto from = rgb(gradientStops.at(stop));
    const auto to = rgb(gradientStops.at(stop + 1));
    const auto between = [&](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return {between(from.red, to.red), between(from.green, to.green), between(from.blue, to.blue)};
}

ColorName nearestStop(double position) {
    const double place = std::clamp(position, 0.0, 1.0) * (gradientStops.size() - 1);
    return gradientStops.at(static_cast<std::size_t>(std::lround(place)));
}

// The colour cube of xterm: 16 + 36 red + 6 green + blue, with these six levels of each.
int cubeColor(Rgb color) {
    constexpr std::array levels{0, 95, 135, 175, 215, 255};
    const auto nearest = [&](int value) {
        const auto closer = [&](int a, int b) { return std::abs(a - value) < std::abs(b - value); };
        return static_cast<int>(std::min_element(levels.begin(), levels.end(), closer) - levels.begin());
    };
    return 16 + 36 * nearest(color.red) + 6 * nearest(color.green) + nearest(color.blue);
}

std::string colorSequence(const Style& style, ColorDepth depth) {
    if (depth == ColorDepth::sixteen) {
        return std::string(basicSequence(style.gradient ? nearestStop(*style.gradient) : style.color.name));
    }
    const bool unchanged = style.color.name == ColorName::primary || style.color.name == ColorName::white;
    if (unchanged && !style.gradient) {
        return {};
    }
    const auto color = style.gradient ? gradientColor(*style.gradient) : rgb(style.color.name);
    return depth == ColorDepth::full ? fmt::format("38;2;{};{};{}", color.red, color.green, color.blue)
                                     : fmt::format("38;5;{}", cubeColor(color));
}

std::string withSequences(const Span& span, ColorDepth depth) {
    std::string codes;
    const auto add = [&](const std::string& code) {
        codes += codes.empty() || code.empty() ? "" : ";";
        codes += code;
    };
    add(span.style.bold ? "1" : "");
    add(span.style.inverse ? "7" : "");
    add(colorSequence(span.style, depth));
    return codes.empty() || span.text.empty() ? span.text
                                              : fmt::format("\x1b[{}m{}\x1b[0m", codes, span.text);
}

} // namespace

ColorDepth colorDepth(std::string_view term, std::string_view colorTerm, std::string_view noColor) {
    if (!noColor.empty() || term.empty() || term == "dumb") {
        return ColorDepth::none;
    }
    if (colorTerm == "truecolor" || colorTerm == "24bit" || term.ends_with("-direct")) {
        return ColorDepth::full;
    }
    return term.find("256color") != std::string_view::npos ? ColorDepth::twoHundredFiftySix
                                                           : ColorDepth::sixteen;
}

std::string withSequences(const Line& line, ColorDepth depth) {
    std::string text;
    Line merged;
    for (const auto& span : line) {
        if (!merged.empty() && merged.back().style == span.style) {
            merged.back().text += span.text;
        } else {
            merged.push_back(span);
        }
    }
    for (const auto& span : merged) {
        text += depth == ColorDepth::none ? span.text : withSequences(span, depth);
    }
    return text;
}

} // namespace quelby::cli
