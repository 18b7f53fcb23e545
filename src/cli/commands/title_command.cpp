#include "cli/commands/commands.h"

#include "cli/commands/cycle_run.h"
#include "cli/output/filled_template.h"
#include "cli/output/title_output.h"
#include "console/standard_output.h"

namespace quelby::cli {

namespace {

std::string lineOf(const PowerMonitor& monitor, const TitleCommand& command) {
    if (command.words) {
        return filledTemplate(*command.words, monitor) + '\n';
    }
    return formattedTitle(monitor, command.display.value_or(monitor.menuBarDisplay), command.format) + '\n';
}

} // namespace

Result<void> runTitle(Machine& machine, const TitleCommand& command, Pace pace) {
    const auto once = [&](const PowerMonitor& monitor) {
        return writeToStandardOutput(lineOf(monitor, command));
    };
    if (!command.follow) {
        return runCycles(machine, machine.platform(), untilTheEnd(machine, once));
    }
    auto run = cycleRun({}, pace);
    std::string shown;
    run.afterCycle = [&](const PowerMonitor& monitor) -> Result<void> {
        auto line = lineOf(monitor, command);
        if (line == shown) {
            return {}; // a bar would redraw for nothing
        }
        shown = line;
        return writeToStandardOutput(line);
    };
    return runCycles(machine, machine.platform(), run);
}

} // namespace quelby::cli
