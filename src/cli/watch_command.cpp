#include "cli/watch_command.h"

#include <csignal>

#include "cli/cycle_run.h"
#include "cli/fields_json.h"
#include "cli/terminal/terminal_screen.h"
#include "console/cycle_line.h"
#include "console/signals.h"
#include "console/standard_output.h"

namespace quelby::cli {

namespace {

class TerminalWatch {
public:
    explicit TerminalWatch(Machine& machine) : machine_(machine), platform_(machine.platform()) {}

    [[nodiscard]] Result<void> run(CycleRun run) {
        const SignalListener listener({SIGWINCH, SIGTSTP}, [this](int signal) { listen(signal); });
        run.afterCycle = [this](const PowerMonitor& monitor) {
            shown_ = &monitor;
            return draw();
        };
        return runCycles(machine_, platform_, run);
    }

private:
    [[nodiscard]] Result<void> draw() {
        return screen_.show(watchFrame(*shown_, platform_.clock.now(), screen_.size(), colours_));
    }

    void listen(int signal) {
        if (signal == SIGTSTP) {
            screen_.leave();
            ::raise(SIGSTOP); // comes back when the shell continues the program
            screen_.enter();
        }
        if (shown_ != nullptr) {
            static_cast<void>(draw()); // a terminal that is gone fails the next cycle
        }
    }

    Machine& machine_;
    Platform platform_;
    Colours colours_ = terminalColours();
    TerminalScreen screen_;
    const PowerMonitor* shown_ = nullptr; // the run's; none before its first cycle
};

Result<void> watchLineByLine(Machine& machine, CycleRun run, OutputForm form) {
    const auto platform = machine.platform();
    run.afterCycle = [&](const PowerMonitor& monitor) {
        return writeToStandardOutput(form == OutputForm::json ? fieldsAsJson(monitor) + '\n'
                                                              : cycleLine(monitor, platform.clock.now()));
    };
    return runCycles(machine, platform, run);
}

} // namespace

Result<void> runWatch(Machine& machine, const WatchCommand& command, Pace pace) {
    const auto run = cycleRun(command.repetition, pace);
    if (command.form == OutputForm::text && canDrawInPlace()) {
        return TerminalWatch(machine).run(run);
    }
    return watchLineByLine(machine, run, command.form);
}

} // namespace quelby::cli
