// What a person asked quelbyctl for.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <variant>

#include "base/cycle_interval.h"
#include "cli/arguments/title_template.h"
#include "console/machine_arguments.h"
#include "history/energy/energy_range.h"
#include "history/time_range.h"
#include "monitor/menu_bar_display.h"

namespace quelby::cli {

enum class OutputForm { text, json, csv };

struct StatusCommand {
    OutputForm form = OutputForm::text;
};

struct Repetition {
    std::optional<std::int64_t> count;                      // cycles, 1 or more; none: until it is ended
    std::chrono::duration<double> interval = cycleInterval; // 0.01 s or more
};

struct WatchCommand {
    OutputForm form = OutputForm::text;
    Repetition repetition;
};

struct DashboardCommand {
    OutputForm form = OutputForm::text;
    Page page = Page::dashboard;
};

struct RecordCommand {
    std::filesystem::path file;
    Repetition repetition;
};

struct HistoryCommand {
    TimeRange range = TimeRange::thirtyMinutes;
    OutputForm form = OutputForm::text;
};

enum class EnergyGrouping { app, component, hour, day };

struct EnergyCommand {
    EnergyRange range = EnergyRange::today;
    EnergyGrouping by = EnergyGrouping::app;
    OutputForm form = OutputForm::text;
};

struct SleepsCommand {
    OutputForm form = OutputForm::text;
};

struct SessionsCommand {
    OutputForm form = OutputForm::text;
};

struct HealthCommand {
    OutputForm form = OutputForm::text;
};

enum class TitleFormat { plain, json, waybar, i3blocks, polybar, tmux };

struct TitleCommand {
    std::optional<MenuBarDisplay> display; // none: the user's choice
    TitleFormat format = TitleFormat::plain;
    std::optional<TitleTemplate> words; // in place of the display and the format
    bool follow = false;                // a line whenever it changes, instead of one
};

struct MetricsCommand {
    std::optional<std::filesystem::path> file; // none: standard output
};

// Shows the setting unless it says what to change.
struct LimitCommand {
    std::optional<bool> enable;
    std::optional<std::int64_t> percent; // % of full charge, within stopRange
};

struct CalibrationCommand {
    std::optional<bool> enable;
    std::optional<std::int64_t> days; // one of calibrationIntervals
};

enum class HelperWish { status, install, uninstall };

struct HelperCommand {
    HelperWish wish = HelperWish::status;
    OutputForm form = OutputForm::text; // of the status
};

using Command = std::variant<StatusCommand, WatchCommand, DashboardCommand, RecordCommand, HistoryCommand,
                             EnergyCommand, SleepsCommand, SessionsCommand, HealthCommand, TitleCommand,
                             MetricsCommand, LimitCommand, CalibrationCommand, HelperCommand>;

struct Request {
    MachineArguments arguments;
    Command command;
};

[[nodiscard]] std::variant<Request, Answer> parseCommandLine(int argc, const char* const* argv);

} // namespace quelby::cli
