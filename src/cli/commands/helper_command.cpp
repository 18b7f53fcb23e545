#include "cli/commands/commands.h"

#include <fmt/format.h>

#include "cli/commands/cycle_run.h"
#include "console/standard_output.h"
#include "platform/helper_names.h"

namespace quelby::cli {

namespace {

Result<void> printState(const PowerMonitor& monitor) {
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
            return {};
        }
        if (install && isMissing(machine, *platform.folders)) {
            return problem(
                fmt::format("cannot install the helper: its program \"{}\" did not come with this one",
                            helperExecutableName));
        }
        return install ? monitor.installDaemon() : monitor.uninstallDaemon();
    };
    return runCycles(machine, platform, untilTheEnd(machine, [&](PowerMonitor& monitor) {
                         return change(monitor).and_then([&] { return printState(monitor); });
                     }));
}

} // namespace quelby::cli
