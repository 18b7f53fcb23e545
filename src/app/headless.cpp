#include "app/headless.h"

#include <csignal>

#include "app/recorder_lock.h"
#include "console/cycles.h"
#include "console/standard_output.h"
#include "ui/presentation/text/cycle_line.h"

namespace quelby::app {

Result<void> runHeadless(const MachineArguments& arguments) {
    const auto machine = Machine::make(arguments.machine);
    if (!machine) {
        return tl::make_unexpected(machine.error());
    }
    const auto platform = (*machine)->platform();
    const RecorderLock lock(platform.folders->applicationSupport());
    if (!lock.outcome()) {
        return lock.outcome();
    }
    std::signal(SIGPIPE, SIG_IGN); // whoever read the lines may leave; the recorder stays
    CycleRun run{.history = HistoryAccess::recording};
    if (arguments.pace == Pace::withoutWaiting) {
        run.interval = std::chrono::seconds(0);
    }
    run.afterCycle = [&](const PowerMonitor& monitor) -> Result<void> {
        static_cast<void>(writeToStandardOutput(cycleLine(monitor, platform.clock->now())));
        return {};
    };
    return runCycles(**machine, platform, run);
}

} // namespace quelby::app
