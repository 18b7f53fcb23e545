#include "cli/status_command.h"

#include "cli/cycle_run.h"
#include "cli/fields_json.h"
#include "cli/fields_text.h"
#include "console/standard_output.h"

namespace quelby::cli {

namespace {

// All of a recording at once, or a single cycle of this computer.
CycleRun wholeRun(const Machine& machine) {
    auto run = cycleRun({}, Pace::withoutWaiting);
    if (machine.kind() == MachineKind::thisComputer) {
        run.count = 1;
    }
    return run;
}

} // namespace

Result<void> runStatus(Machine& machine, const StatusCommand& command) {
    auto run = wholeRun(machine);
    run.atEnd = [&](const PowerMonitor& monitor) {
        const bool json = command.form == OutputForm::json;
        return writeToStandardOutput(json ? fieldsAsJson(monitor) + '\n' : fieldsAsText(monitor));
    };
    return runCycles(machine, machine.platform(), run);
}

} // namespace quelby::cli
