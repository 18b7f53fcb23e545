#include "cli/helper_command.h"

#include <fmt/format.h>

#include "cli/cycle_run.h"
#include "console/standard_output.h"
#include "platform/helper_names.h"

namespace quelby::cli {

namespace {

Result<void> printState(const PowerMonitor& monitor) {
    return writeToStandardOutput(monitor.daemonInstalled ? "the helper is installed and running\n"
                                                         : "the helper is not installed\n");
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
    return monitor.daemonInstalled ? printState(monitor) : problem("the helper was not installed");
}

Result<void> uninstall(PowerMonitor& monitor) {
    monitor.daemonInstalled = true;
    monitor.uninstallDaemon();
    return monitor.daemonInstalled ? problem("the helper was not removed") : printState(monitor);
}

} // namespace

Result<void> runHelper(Machine& machine, const HelperCommand& command) {
    const auto platform = machine.platform();
    return runCycles(machine, platform, untilTheEnd(machine, [&](PowerMonitor& monitor) -> Result<void> {
                         if (command.wish == HelperWish::status) {
                             return printState(monitor);
                         }
                         if (auto refused = refuseForRecording(machine); !refused) {
                             return refused;
                         }
                         return command.wish == HelperWish::install ? install(platform, monitor)
                                                                    : uninstall(monitor);
                     }));
}

} // namespace quelby::cli
