#include "cli/arguments/values.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "base/number_text.h"
#include "ui/presentation/cards/settings_panel.h"

namespace quelby::cli {

namespace {

constexpr double shortestInterval = 0.01;     // seconds
constexpr double longestInterval = 1'000'000; // eleven days; a timer counts milliseconds in 32 bits

constexpr std::array titleFormats{std::pair(std::string_view("plain"), TitleFormat::plain),
                                  std::pair(std::string_view("json"), TitleFormat::json),
                                  std::pair(std::string_view("waybar"), TitleFormat::waybar),
                                  std::pair(std::string_view("i3blocks"), TitleFormat::i3blocks),
                                  std::pair(std::string_view("polybar"), TitleFormat::polybar),
                                  std::pair(std::string_view("tmux"), TitleFormat::tmux)};

std::vector<std::string_view> titleFormatNames() {
    std::vector<std::string_view> names;
    std::transform(titleFormats.begin(), titleFormats.end(), std::back_inserter(names),
                   [](const auto& named) { return named.first; });
    return names;
}

// In the order of the enumeration.
constexpr std::array groupings{std::pair(std::string_view("app"), EnergyGrouping::app),
                               std::pair(std::string_view("component"), EnergyGrouping::component),
                               std::pair(std::string_view("hour"), EnergyGrouping::hour),
                               std::pair(std::string_view("day"), EnergyGrouping::day)};

std::vector<std::string_view> groupingNames() {
    std::vector<std::string_view> names;
    std::transform(groupings.begin(), groupings.end(), std::back_inserter(names),
                   [](const auto& named) { return named.first; });
    return names;
}

template <typename Cases>
std::vector<std::string_view> rawValues(const Cases& cases) {
    std::vector<std::string_view> values;
    std::transform(cases.begin(), cases.end(), std::back_inserter(values),
                   [](auto one) { return rawValue(one); });
    return values;
}

// As in "7, 14, 30 or 60".
template <typename Values>
std::string oneOf(const Values& values) {
    const auto last = std::prev(values.end());
    return fmt::format("{} or {}", fmt::join(values.begin(), last, ", "), *last);
}

// "on" or "off".
std::optional<bool> switchPosition(const std::string& text) {
    return text == "on" ? std::optional(true) : text == "off" ? std::optional(false) : std::nullopt;
}

} // namespace

std::string knownRanges() {
    return oneOf(rawValues(allTimeRanges));
}

std::string knownCalibrationIntervals() {
    return oneOf(calibrationIntervals);
}

std::string rangeWords() {
    return fmt::format("{}", fmt::join(rawValues(allTimeRanges), "|"));
}

std::string energyRangeWords() {
    return fmt::format("{}", fmt::join(rawValues(allEnergyRanges), "|"));
}

std::string energyGroupingWords() {
    return fmt::format("{}", fmt::join(groupingNames(), "|"));
}

std::string_view groupingWord(EnergyGrouping grouping) {
    return groupings.at(static_cast<std::size_t>(grouping)).first;
}

std::string displayWords() {
    return fmt::format("{}", fmt::join(rawValues(allMenuBarDisplays), "|"));
}

std::string titleFormatWords() {
    return fmt::format("{}", fmt::join(titleFormatNames(), "|"));
}

std::string calibrationWords() {
    return fmt::format("show|on|off|{}", fmt::join(calibrationIntervals, "|"));
}

std::int64_t parseCount(const std::string& text) {
    const auto count = wholeNumber(text);
    if (!count || *count < 1) {
        throw CLI::ValidationError(
            fmt::format("--count takes a whole number of 1 or more, not \"{}\"", text));
    }
    return *count;
}

std::chrono::duration<double> parseInterval(const std::string& text) {
    const auto seconds = decimalNumber(text);
    if (!seconds || *seconds < shortestInterval || *seconds > longestInterval) {
        throw CLI::ValidationError(
            fmt::format("--interval takes a number of seconds from 0.01 to 1000000, not \"{}\"", text));
    }
    return std::chrono::duration<double>(*seconds);
}

TimeRange parseRange(const std::string& text) {
    const auto range = timeRange(text);
    if (!range) {
        throw CLI::ValidationError(fmt::format("--range takes {}, not \"{}\"", knownRanges(), text));
    }
    return *range;
}

EnergyRange parseEnergyRange(const std::string& text) {
    const auto range = energyRange(text);
    if (!range) {
        throw CLI::ValidationError(
            fmt::format("--range takes {}, not \"{}\"", oneOf(rawValues(allEnergyRanges)), text));
    }
    return *range;
}

EnergyGrouping parseEnergyGrouping(const std::string& text) {
    for (const auto& [name, grouping] : groupings) {
        if (text == name) {
            return grouping;
        }
    }
    throw CLI::ValidationError(fmt::format("--by takes {}, not \"{}\"", oneOf(groupingNames()), text));
}

MenuBarDisplay parseDisplay(const std::string& text) {
    const auto display = menuBarDisplay(text);
    if (!display) {
        throw CLI::ValidationError(fmt::format(R"(--display takes one of "{}", not "{}")",
                                               fmt::join(rawValues(allMenuBarDisplays), R"(", ")"), text));
    }
    return *display;
}

TitleFormat parseTitleFormat(const std::string& text) {
    for (const auto& [name, format] : titleFormats) {
        if (text == name) {
            return format;
        }
    }
    throw CLI::ValidationError(fmt::format("--format takes {}, not \"{}\"", oneOf(titleFormatNames()), text));
}

LimitCommand parseLimit(const std::string& text) {
    const auto percent = wholeNumber(text);
    const bool settable = percent && *percent >= stopRange.lowest && *percent <= stopRange.highest &&
                          *percent % stopRange.step == 0;
    if (text != "show" && !switchPosition(text) && !settable) {
        throw CLI::ValidationError(
            fmt::format("limit takes show, on, off or a percentage from {} to {} in steps of {}, not \"{}\"",
                        stopRange.lowest, stopRange.highest, stopRange.step, text));
    }
    return {.enable = switchPosition(text), .percent = settable ? percent : std::nullopt};
}

CalibrationCommand parseCalibration(const std::string& text) {
    const auto days = wholeNumber(text);
    const bool settable = days && std::find(calibrationIntervals.begin(), calibrationIntervals.end(),
                                            *days) != calibrationIntervals.end();
    if (text != "show" && !switchPosition(text) && !settable) {
        throw CLI::ValidationError(fmt::format("calibration takes show, on, off, {}, not \"{}\"",
                                               knownCalibrationIntervals(), text));
    }
    return {.enable = switchPosition(text), .days = settable ? days : std::nullopt};
}

HelperWish parseHelperWish(const std::string& text) {
    constexpr std::array names{std::pair("status", HelperWish::status),
                               std::pair("install", HelperWish::install),
                               std::pair("uninstall", HelperWish::uninstall)};
    for (const auto& [name, wish] : names) {
        if (text == name) {
            return wish;
        }
    }
    throw CLI::ValidationError(fmt::format("helper takes status, install or uninstall, not \"{}\"", text));
}

} // namespace quelby::cli
