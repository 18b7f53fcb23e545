#include "cli/watch_command.h"

#include <csignal>

#include "cli/cycle_line.h"
#include "cli/cycles.h"
#include "cli/fields_json.h"
#include "cli/signals.h"
#include "cli/standard_output.h"
#include "cli/terminal/terminal_screen.h"

namespace quelby::cli {

namespace {

class TerminalWatch {
public:
    explicit TerminalWatch(Machine& machine) : machine_(machine), platform_(machine.platform()) {}

    [[nodiscard]] Result<void> run(const Repetition& repetition) {
        const SignalListener listener({SIGWINCH, SIGTSTP}, [this](int signal) { listen(signal); });
        return runCycles(machine_, platform_, repetition, [this](const PowerMonitor& monitor) {
            shown_ = &monitor;
            return draw();
        });
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

Result<void> watchLineByLine(Machine& machine, const Repetition& repetition, OutputForm form) {
    const auto platform = machine.platform();
    return runCycles(machine, platform, repetition, [&](const PowerMonitor& monitor) {
        return writeToStandardOutput(form == OutputForm::json ? fieldsAsJson(monitor) + '\n'
                                                              : cycleLine(monitor, platform.clock.now()));
    });
}

} // namespace

Result<void> runWatch(Machine& machine, const WatchCommand& command, Pace pace) {
    const auto repetition = paced(command.repetition, pace);
    if (command.form == OutputForm::text && canDrawInPlace()) {
        return TerminalWatch(machine).run(repetition);
    }
    return watchLineByLine(machine, repetition, command.form);
}

} // namespace quelby::cli
