#include "app/command_line.h"

namespace quelby::app {

std::variant<MachineArguments, Answer> parseCommandLine(int argc, const char* const* argv) {
    CLI::App parser("Shows what this computer's power is doing, and keeps a history of it.", "quelby");
    MachineArguments arguments;
    addCommonOptions(parser, arguments);
    bool headless = false;
    parser
        .add_flag("--headless", headless,
                  "No user interface: record the history, and print a line for each cycle")
        ->required(); // there is no other form of the program yet
    if (auto answer = parseArguments(parser, arguments, argc, argv)) {
        return *std::move(answer);
    }
    arguments.machine.afterLastLine =
        arguments.pace == Pace::withoutWaiting ? AfterLastLine::stay : AfterLastLine::startAgain;
    return arguments;
}

} // namespace quelby::app
