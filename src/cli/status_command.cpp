#include "cli/status_command.h"

#include "cli/cycles.h"
#include "cli/fields_json.h"
#include "cli/fields_text.h"
#include "cli/standard_output.h"

namespace quelby::cli {

Result<void> runStatus(Machine& machine, const StatusCommand& command) {
    Repetition repetition{.count = std::nullopt, .interval = std::chrono::seconds(0)};
    if (machine.kind() == MachineKind::thisComputer) {
        repetition.count = 1;
    }
    return runCycles(
        machine, machine.platform(), repetition, [&](const PowerMonitor& monitor) -> Result<void> {
            if (machine.kind() == MachineKind::recorded && !machine.hasEnded()) {
                return {};
            }
            const bool json = command.form == OutputForm::json;
            return writeToStandardOutput(json ? fieldsAsJson(monitor) + '\n' : fieldsAsText(monitor));
        });
}

} // namespace quelby::cli
