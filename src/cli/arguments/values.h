// What the words on the command line mean. Each throws a CLI::ValidationError that names what is wrong and what
// would be right. Numbers are read here and not by the option library, which would follow the locale.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "cli/arguments/command_line.h"

namespace quelby::cli {

[[nodiscard]] std::int64_t parseCount(const std::string& text);
[[nodiscard]] std::chrono::duration<double> parseInterval(const std::string& text);
[[nodiscard]] TimeRange parseRange(const std::string& text);
[[nodiscard]] EnergyRange parseEnergyRange(const std::string& text);
[[nodiscard]] EnergyGrouping parseEnergyGrouping(const std::string& text);
[[nodiscard]] MenuBarDisplay parseDisplay(const std::string& text);
[[nodiscard]] TitleFormat parseTitleFormat(const std::string& text);
[[nodiscard]] LimitCommand parseLimit(const std::string& text);
[[nodiscard]] CalibrationCommand parseCalibration(const std::string& text);
[[nodiscard]] HelperWish parseHelperWish(const std::string& text);

// The words that an option takes, as in "30m|1h|24h|7d"; help and completions show them. Those in capitals stand
// for others.
[[nodiscard]] std::string rangeWords();
[[nodiscard]] std::string energyRangeWords();
[[nodiscard]] std::string energyGroupingWords();
[[nodiscard]] std::string displayWords();
[[nodiscard]] std::string titleFormatWords();
[[nodiscard]] std::string calibrationWords();
inline constexpr const char* limitWords = "show|on|off|PERCENT";
inline constexpr const char* helperWords = "status|install|uninstall";

// "app", "component", "hour" or "day".
[[nodiscard]] std::string_view groupingWord(EnergyGrouping grouping);

// As in "30m, 1h, 24h or 7d".
[[nodiscard]] std::string knownRanges();
[[nodiscard]] std::string knownCalibrationIntervals();

} // namespace quelby::cli
