#include "cli/commands/commands.h"

#include "cli/commands/cycle_run.h"
#include "cli/output/fields_json.h"
#include "cli/output/fields_text.h"
#include "console/standard_output.h"

namespace quelby::cli {

Result<void> runStatus(Machine& machine, const StatusCommand& command) {
    const auto print = [&](const PowerMonitor& monitor) {
        const bool json = command.form == OutputForm::json;
        const auto minutes = monitor.minutesToLimit();
        return writeToStandardOutput(json ? statusAsJson(monitor, minutes) + '\n'
                                          : statusAsText(monitor, minutes));
    };
    return runCycles(machine, machine.platform(), untilTheEnd(machine, print));
}

} // namespace quelby::cli
