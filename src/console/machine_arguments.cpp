#include "console/machine_arguments.h"

#include <fmt/format.h>

#include "base/version.h"

namespace quelby {

namespace {

constexpr int usedWrongly = 2;

void addRoot(CLI::App& parser, const char* name, std::filesystem::path& root, const char* help) {
    parser
        .add_option_function<std::string>(
            name, [&root](const std::string& text) { root = text; }, help)
        ->type_name("DIR");
}

} // namespace

Page parsePage(const std::string& text) {
    if (text == "dashboard" || text == "settings") {
        return text == "settings" ? Page::settings : Page::dashboard;
    }
    throw CLI::ValidationError(fmt::format(R"(--view takes dashboard or settings, not "{}")", text));
}

void addPathOption(CLI::App& parser, const char* name, const char* type,
                   std::optional<std::filesystem::path>& path, const char* help) {
    parser
        .add_option_function<std::string>(
            name, [&path](const std::string& text) { path = text; }, help)
        ->type_name(type);
}

void addCommonOptions(CLI::App& parser, MachineArguments& arguments) {
    parser.set_version_flag("--version", fmt::format("{} {}", parser.get_name(), version()),
                            "Print the version and exit");
    parser.set_help_flag("--help,-h", "Print this help and exit");
    auto& machine = arguments.machine;
    addPathOption(parser, "--replay", "FILE", machine.replay,
                  "A recorded machine takes the place of this one");
    parser.add_flag_callback(
        "--fast", [&arguments] { arguments.pace = Pace::withoutWaiting; },
        "With --replay: play the recording without waiting");
    addPathOption(parser, "--data-dir", "DIR", machine.dataDir,
                  "Takes the place of the folder with the history");
    addPathOption(parser, "--config-dir", "DIR", machine.configDir, "Takes the place of the helper's folder");
    addPathOption(parser, "--preferences", "FILE", machine.preferences,
                  "Takes the place of the preference store");
    addRoot(parser, "--sysfs-root", machine.roots.sysfs, "Takes the place of /sys");
    addRoot(parser, "--proc-root", machine.roots.proc, "Takes the place of /proc");
}

Answer wrongUsage(const CLI::App& parser, std::string_view sentence) {
    return {usedWrongly, fmt::format("{0}: {1} ({0} --help tells more)\n", parser.get_name(), sentence)};
}

std::optional<Answer> parseArguments(CLI::App& parser, const MachineArguments& arguments, int argc,
                                     const char* const* argv) {
    try {
        parser.parse(argc, argv);
        if (arguments.pace == Pace::withoutWaiting && !arguments.machine.replay) {
            throw CLI::ValidationError("--fast needs --replay");
        }
        return std::nullopt;
    } catch (const CLI::CallForHelp&) {
        return Answer{0, parser.help()}; // or that of the command, if one was named
    } catch (const CLI::CallForVersion& version) {
        return Answer{0, std::string(version.what()) + '\n'};
    } catch (const CLI::ParseError& error) {
        return wrongUsage(parser, error.what());
    }
}

} // namespace quelby
