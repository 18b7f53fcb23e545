#include "cli/arguments/command_line.h"

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

#include "base/utf8.h"
#include "cli/arguments/command_line_description.h"
#include "cli/arguments/nearest_word.h"
#include "cli/arguments/values.h"

namespace quelby::cli {

namespace {

void addRepetition(CLI::App& command, Repetition& repetition) {
    command
        .add_option_function<std::string>(
            "--count", [&](const std::string& text) { repetition.count = parseCount(text); },
            "End after this many cycles")
        ->type_name("N");
    command
        .add_option_function<std::string>(
            "--interval", [&](const std::string& text) { repetition.interval = parseInterval(text); },
            fmt::format("Time between two cycles, {} unless named", cycleInterval.count()))
        ->type_name("SECONDS");
}

CLI::Option* addForm(CLI::App& command, const char* name, OutputForm form, OutputForm& chosen,
                     const char* help) {
    return command.add_flag_callback(
        name, [&chosen, form] { chosen = form; }, help);
}

// The command line as it is being read.
struct Reading {
    CLI::App app{"Shows what this computer's power is doing, for terminals, status bars and scripts.",
                 "quelbyctl"};
    Request request;
    StatusCommand status;
    WatchCommand watch;
    DashboardCommand dashboard;
    RecordCommand record;
    HistoryCommand history;
    EnergyCommand energy;
    SleepsCommand sleeps;
    SessionsCommand sessions;
    HealthCommand health;
    TitleCommand title;
    MetricsCommand metrics;
    LimitCommand limit;
    CalibrationCommand calibration;
    HelperCommand helper;

    Reading() {
        addCommonOptions(app, request.arguments);
        app.require_subcommand(1);
        app.footer(
            "The options of quelbyctl itself (see quelbyctl --help) may stand before and behind a command.");
        app.fallthrough();
        addStatus();
        addWatch();
        addDashboard();
        addRecord();
        addHistory();
        addEnergy();
        addRecords("sleeps", "What the last thirty sleeps of this computer took out of its battery", sleeps);
        addRecords("sessions", "The last thirty times on battery, of charging and of calibration, each",
                   sessions);
        addRecords("health",
                   "The battery's capacity, cycles and highest temperature, day by day, and how it ages",
                   health);
        addTitle();
        addMetrics();
        addSetting("limit", limitWords,
                   "The charge limit: show (unless named otherwise), on, off, or a percentage", limit,
                   parseLimit);
        addSetting(
            "calibration", calibrationWords(),
            fmt::format("The battery's calibration: show (unless named otherwise), on, off, or {} days",
                        knownCalibrationIntervals()),
            calibration, parseCalibration);
        addHelper();
    }

    // A command with one word behind it, which may be missing.
    template <typename T>
    void addSetting(const char* name, const std::string& words, const std::string& help, T& setting,
                    T (*parse)(const std::string&)) {
        auto* const command = app.add_subcommand(name, help);
        command
            ->add_option_function<std::string>(
                "VALUE", [&setting, parse](const std::string& text) { setting = parse(text); }, "What to do")
            ->type_name(words);
        command->final_callback([this, &setting] { request.command = setting; });
    }

    void addHelper() {
        auto* const command = app.add_subcommand(
            "helper", "The charge-limit helper: status (unless named otherwise), install or uninstall");
        command
            ->add_option_function<std::string>(
                "VALUE", [this](const std::string& text) { helper.wish = parseHelperWish(text); },
                "What to do")
            ->type_name(helperWords);
        addForm(*command, "--json", OutputForm::json, helper.form, "The status as one JSON object");
        command->final_callback([this] {
            if (helper.form == OutputForm::json && helper.wish != HelperWish::status) {
                throw CLI::ValidationError("only the status of the helper is printed with --json");
            }
            request.command = helper;
        });
    }

    void addStatus() {
        auto* const command = app.add_subcommand(
            "status", "All figures after one cycle; with --replay, after the last line of the recording");
        addForm(*command, "--json", OutputForm::json, status.form, "As one JSON object");
        command->final_callback([this] { request.command = status; });
    }

    void addWatch() {
        auto* const command = app.add_subcommand(
            "watch", "The dashboard, renewed in place in a terminal; elsewhere a line for each cycle");
        addForm(*command, "--json", OutputForm::json, watch.form,
                "One JSON object for each cycle, a line each");
        addRepetition(*command, watch.repetition);
        command->final_callback([this] { request.command = watch; });
    }

    void addDashboard() {
        auto* const command = app.add_subcommand("dashboard", "What every card of the dashboard says, once");
        addForm(*command, "--json", OutputForm::json, dashboard.form, "As one JSON object");
        command
            ->add_option_function<std::string>(
                "--view", [this](const std::string& text) { dashboard.page = parsePage(text); },
                "The page; dashboard unless named")
            ->type_name("dashboard|settings");
        command->final_callback([this] { request.command = dashboard; });
    }

    void addRecord() {
        auto* const command = app.add_subcommand(
            "record",
            "Write a recording of this machine, to be played with --replay, until it is interrupted");
        command
            ->add_option_function<std::string>(
                "FILE", [this](const std::string& text) { record.file = text; }, "The recording")
            ->required()
            ->type_name("");
        addRepetition(*command, record.repetition);
        command->final_callback([this] { request.command = record; });
    }

    void addHistory() {
        auto* const command =
            app.add_subcommand("history", "The stored power curve with its statistics, and today's energy");
        command
            ->add_option_function<std::string>(
                "--range", [this](const std::string& text) { history.range = parseRange(text); },
                fmt::format("How far back; {} unless named", rawValue(history.range)))
            ->type_name(rangeWords());
        addForms(*command, history.form, "A line for each point");
        command->final_callback([this] { request.command = history; });
    }

    static void addForms(CLI::App& command, OutputForm& form, const char* linesHelp) {
        auto* const json = addForm(command, "--json", OutputForm::json, form, "As one JSON object");
        addForm(command, "--csv", OutputForm::csv, form, linesHelp)->excludes(json);
    }

    void addEnergy() {
        auto* const command = app.add_subcommand(
            "energy",
            "Where the energy went, which is an estimate by the share of CPU time, in watt-hours and in "
            "percent of a full charge");
        command
            ->add_option_function<std::string>(
                "--range", [this](const std::string& text) { energy.range = parseEnergyRange(text); },
                fmt::format("How far back; {} unless named", rawValue(energy.range)))
            ->type_name(energyRangeWords());
        command
            ->add_option_function<std::string>(
                "--by", [this](const std::string& text) { energy.by = parseEnergyGrouping(text); },
                fmt::format("What is told apart; {} unless named", groupingWord(energy.by)))
            ->type_name(energyGroupingWords());
        addForms(*command, energy.form, "A line for each of them");
        command->final_callback([this] { request.command = energy; });
    }

    // A command that tells all records of one kind.
    template <typename T>
    void addRecords(const char* name, const char* help, T& records) {
        auto* const command = app.add_subcommand(name, help);
        addForms(*command, records.form, "A line for each of them");
        command->final_callback([this, &records] { request.command = records; });
    }

    void addTitle() {
        auto* const command =
            app.add_subcommand("title", "What the menu bar shows, for status bars and scripts");
        auto* const display =
            command
                ->add_option_function<std::string>(
                    "--display", [this](const std::string& text) { title.display = parseDisplay(text); },
                    "Another figure than the chosen one")
                ->type_name(displayWords());
        auto* const format =
            command
                ->add_option_function<std::string>(
                    "--format", [this](const std::string& text) { title.format = parseTitleFormat(text); },
                    "The form in which a status bar wants it; plain unless named")
                ->type_name(titleFormatWords());
        command
            ->add_option_function<std::string>(
                "--template", [this](const std::string& text) { title.words = parseTitleTemplate(text); },
                fmt::format("Words of your own, in which figures stand in braces: {}", knownTitleFigures()))
            ->type_name("TEXT")
            ->excludes(format)
            ->excludes(display);
        command->add_flag("--follow", title.follow, "Print a line whenever it changes, until interrupted");
        command->final_callback([this] { request.command = title; });
    }

    void addMetrics() {
        auto* const command =
            app.add_subcommand("metrics", "All figures once, in the text form of OpenMetrics");
        addPathOption(*command, "--output", "FILE", metrics.file,
                      "Written by a rename, as collectors of text files want it");
        command->final_callback([this] { request.command = metrics; });
    }
};

// The word that stands where a command should, if no command was found.
std::optional<std::string> unknownCommand(const CLI::App& app) {
    const auto left = app.remaining();
    const auto word = std::find_if(left.begin(), left.end(),
                                   [](const std::string& text) { return !text.starts_with('-'); });
    return app.get_subcommands().empty() && word != left.end() ? std::optional(*word) : std::nullopt;
}

std::string unknownCommandText(const CLI::App& app, const std::string& word) {
    const auto commands = app.get_subcommands([](const CLI::App*) { return true; });
    std::vector<std::string> names;
    std::transform(commands.begin(), commands.end(), std::back_inserter(names),
                   [](const CLI::App* command) { return command->get_name(); });
    return fmt::format(R"(there is no command "{}"; the nearest is "{}")", printable(word),
                       nearestWord(word, {names.begin(), names.end()}));
}

} // namespace

std::variant<Request, Answer> parseCommandLine(int argc, const char* const* argv) {
    Reading reading;
    if (auto answer = parseArguments(reading.app, reading.request.arguments, argc, argv)) {
        const auto unknown = answer->exitStatus == 0 ? std::nullopt : unknownCommand(reading.app);
        return unknown ? wrongUsage(reading.app, unknownCommandText(reading.app, *unknown))
                       : *std::move(answer);
    }
    return reading.request;
}

void describeCommandLine(const std::function<void(const CLI::App&)>& describe) {
    const Reading reading;
    describe(reading.app);
}

} // namespace quelby::cli
