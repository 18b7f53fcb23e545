#include "cli/commands/commands.h"

#include <fmt/format.h>

#include "base/version.h"
#include "cli/commands/cycle_run.h"
#include "cli/output/helper_state.h"
#include "console/standard_output.h"
#include "helper/helper_version.h"
#include "helper/json_record.h"
#include "platform/helper_names.h"
#include "platform/posix/shared_file.h"

namespace quelby::cli {

namespace {

Result<void> printState(const Machine& machine, const Platform& platform, OutputForm form) {
    HelperState state{
        .isLoaded = platform.helperInstaller->isLoaded(),
        .status = platform.helperFolder->status(),
        .details = readSharedFile(platform.folders->helper() / "details.json", JsonRecord::longestText)};
    // Which version a recorded helper had nobody knows.
    state.belongsHere = machine.kind() == MachineKind::recorded || isHelperOf(state.details, version());
    return writeToStandardOutput(form == OutputForm::json ? helperStateAsJson(state)
                                                          : helperStateAsText(state));
}

Result<void> printChange(const PowerMonitor& monitor) {
    return writeToStandardOutput(monitor.daemonInstalled ? "the helper is installed and running\n"
                                                         : "the helper is not installed\n");
}

// Found out before anybody is asked for a password. A recorded machine refuses by itself.
bool isMissing(const Machine& machine, Folders& folders) {
    const auto resources = folders.resources();
    std::error_code failure;
    return machine.kind() == MachineKind::thisComputer &&
           (!resources || !std::filesystem::is_regular_file(*resources / helperExecutableName, failure));
}

} // namespace

Result<void> runHelper(Machine& machine, const HelperCommand& command) {
    const auto platform = machine.platform();
    const bool install = command.wish == HelperWish::install;
    const auto change = [&](PowerMonitor& monitor) -> Result<void> {
        if (command.wish == HelperWish::status) {
            return printState(machine, platform, command.form);
        }
        if (install && isMissing(machine, *platform.folders)) {
            return problem(
                fmt::format("cannot install the helper: its program \"{}\" did not come with this one",
                            helperExecutableName));
        }
        return (install ? monitor.installDaemon() : monitor.uninstallDaemon()).and_then([&] {
            return printChange(monitor);
        });
    };
    return runCycles(machine, platform, untilTheEnd(machine, change));
}

} // namespace quelby::cli
