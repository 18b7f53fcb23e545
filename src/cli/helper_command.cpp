#include "cli/helper_command.h"

#include <fmt/format.h>

#include "cli/cycle_run.h"
#include "cli/helper_state.h"
#include "console/standard_output.h"
#include "helper/json_record.h"
#include "platform/helper_names.h"
#include "platform/posix/shared_file.h"

namespace quelby::cli {

namespace {

Result<void> printState(const Platform& platform, OutputForm form) {
    const HelperState state{
        .isLoaded = platform.serviceManager.isHelperLoaded(),
        .status = platform.helperFolder.status(),
        .details = readSharedFile(platform.folders.helper() / "details.json", JsonRecord::longestText)};
    return writeToStandardOutput(form == OutputForm::json ? helperStateAsJson(state)
                                                          : helperStateAsText(state));
}

Result<void> say(const char* sentence) {
    return writeToStandardOutput(std::string(sentence) + '\n');
}

// A recording shows another machine than the one that would be changed.
Result<void> refuseForRecording(const Machine& machine) {
    if (machine.kind() == MachineKind::thisComputer) {
        return {};
    }
    return problem("a recorded machine has no helper that could be installed or removed");
}

Result<void> install(const Platform& platform, PowerMonitor& monitor) {
    const auto resources = platform.folders.resources();
    std::error_code failure;
    if (!resources || !std::filesystem::is_regular_file(*resources / helperExecutableName, failure)) {
        return problem(fmt::format("cannot install the helper: its program \"{}\" did not come with this one",
                                   helperExecutableName));
    }
    monitor.daemonInstalled = false; // so that what happens now can be told
    monitor.installDaemon();
    return monitor.daemonInstalled ? say("the helper is installed and running")
                                   : problem("the helper was not installed");
}

Result<void> uninstall(PowerMonitor& monitor) {
    monitor.daemonInstalled = true;
    monitor.uninstallDaemon();
    return monitor.daemonInstalled ? problem("the helper was not removed")
                                   : say("the helper is not installed");
}

} // namespace

Result<void> runHelper(Machine& machine, const HelperCommand& command) {
    const auto platform = machine.platform();
    return runCycles(machine, platform, untilTheEnd(machine, [&](PowerMonitor& monitor) -> Result<void> {
                         if (command.wish == HelperWish::status) {
                             return printState(platform, command.form);
                         }
                         if (auto refused = refuseForRecording(machine); !refused) {
                             return refused;
                         }
                         return command.wish == HelperWish::install ? install(platform, monitor)
                                                                    : uninstall(monitor);
                     }));
}

} // namespace quelby::cli
