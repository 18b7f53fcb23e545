#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "base/number_text.h"

namespace quelby::cli {

namespace {

constexpr int wrongUsage = 2;
constexpr double shortestInterval = 0.01;     // seconds
constexpr double longestInterval = 1'000'000; // eleven days; a timer counts milliseconds in 32 bits

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

// Numbers are parsed here and not by the option library, which would follow the locale.
void addRepetition(CLI::App& command, Repetition& repetition) {
    command
        .add_option_function<std::string>(
            "--count", [&](const std::string& text) { repetition.count = parseCount(text); },
            "End after this many cycles")
        ->type_name("N");
    command
        .add_option_function<std::string>(
            "--interval", [&](const std::string& text) { repetition.interval = parseInterval(text); },
            "Time between two cycles, 3 unless named")
        ->type_name("SECONDS");
}

void addJsonFlag(CLI::App& command, OutputForm& form, const char* help) {
    command.add_flag_callback(
        "--json", [&] { form = OutputForm::json; }, help);
}

void addPath(CLI::App& app, const char* name, const char* type, std::optional<std::filesystem::path>& path,
             const char* help) {
    app.add_option_function<std::string>(
           name, [&](const std::string& text) { path = text; }, help)
        ->type_name(type);
}

void addRoot(CLI::App& app, const char* name, std::filesystem::path& root, const char* help) {
    app.add_option_function<std::string>(
           name, [&](const std::string& text) { root = text; }, help)
        ->type_name("DIR");
}

// The command line as it is being read.
struct Reading {
    CLI::App app{"Shows what this computer's power is doing, for terminals, status bars and scripts.",
                 "quelbyctl"};
    Request request;
    StatusCommand status;
    WatchCommand watch;
    RecordCommand record;

    Reading() {
        app.set_version_flag("--version", "quelbyctl " QUELBY_VERSION, "Print the version and exit");
        app.set_help_flag("--help,-h", "Print this help and exit");
        app.require_subcommand(1);
        app.footer(
            "The options of quelbyctl itself (see quelbyctl --help) may stand before and behind a command.");
        app.fallthrough(); // so that the common options may also stand behind the command
        addMachineOptions();
        addStatus();
        addWatch();
        addRecord();
    }

    void addMachineOptions() {
        auto& machine = request.machine;
        addPath(app, "--replay", "FILE", machine.replay, "A recorded machine takes the place of this one");
        app.add_flag_callback(
            "--fast", [this] { request.pace = Pace::withoutWaiting; },
            "With --replay: play the recording without waiting");
        addPath(app, "--data-dir", "DIR", machine.dataDir, "Takes the place of the folder with the history");
        addPath(app, "--config-dir", "DIR", machine.configDir, "Takes the place of the helper's folder");
        addPath(app, "--preferences", "FILE", machine.preferences, "Takes the place of the preference store");
        addRoot(app, "--sysfs-root", machine.roots.sysfs, "Takes the place of /sys");
        addRoot(app, "--proc-root", machine.roots.proc, "Takes the place of /proc");
    }

    void addStatus() {
        auto* const command = app.add_subcommand(
            "status", "All figures after one cycle; with --replay, after the last line of the recording");
        addJsonFlag(*command, status.form, "As one JSON object");
        command->final_callback([this] { request.command = status; });
    }

    void addWatch() {
        auto* const command = app.add_subcommand(
            "watch", "All figures, renewed in place in a terminal; elsewhere a line for each cycle");
        addJsonFlag(*command, watch.form, "One JSON object for each cycle, on a line of its own");
        addRepetition(*command, watch.repetition);
        command->final_callback([this] { request.command = watch; });
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

    void requireReplayForPace() const {
        if (request.pace == Pace::withoutWaiting && !request.machine.replay) {
            throw CLI::ValidationError("--fast needs --replay");
        }
    }
};

} // namespace

std::variant<Request, Answer> parseCommandLine(int argc, const char* const* argv) {
    Reading reading;
    try {
        reading.app.parse(argc, argv);
        reading.requireReplayForPace();
        return reading.request;
    } catch (const CLI::CallForHelp&) {
        return Answer{0, reading.app.help()}; // or that of the command, if one was named
    } catch (const CLI::CallForVersion& version) {
        return Answer{0, std::string(version.what()) + '\n'};
    } catch (const CLI::ParseError& error) {
        return Answer{wrongUsage, fmt::format("quelbyctl: {} (quelbyctl --help tells more)\n", error.what())};
    }
}

} // namespace quelby::cli
