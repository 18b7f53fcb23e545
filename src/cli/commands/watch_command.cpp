#include "cli/commands/commands.h"

#include <algorithm>
#include <csignal>
#include <iterator>

#include "cli/commands/cycle_run.h"
#include "cli/output/fields_json.h"
#include "cli/terminal/device/keys.h"
#include "cli/terminal/device/terminal_screen.h"
#include "cli/terminal/layout/watch_frame.h"
#include "console/key_listener.h"
#include "console/signals.h"
#include "console/standard_output.h"
#include "ui/presentation/text/cycle_line.h"

namespace quelby::cli {

namespace {

class TerminalWatch {
public:
    explicit TerminalWatch(Machine& machine) : machine_(machine), platform_(machine.platform()) {}

    [[nodiscard]] Result<void> run(CycleRun run) {
        const SignalListener signals({SIGWINCH, SIGTSTP}, [this](int signal) { listen(signal); });
        run.afterCycle = [this](PowerMonitor& monitor) {
            monitor_ = &monitor;
            return draw();
        };
        return runCycles(machine_, platform_, run);
    }

private:
    [[nodiscard]] Result<void> draw() {
        view_.size = screen_.size();
        const auto frame =
            watchFrame(dashboard(*monitor_, platform_.clock->now(), systemWords()), view_, energy());
        view_.scrolledBy = std::clamp(view_.scrolledBy, 0, frame.furthestScroll);
        page_ = frame.page;
        std::vector<std::string> lines;
        std::transform(frame.lines.begin(), frame.lines.end(), std::back_inserter(lines),
                       [this](const Line& line) { return withSequences(line, colors_); });
        return screen_.show(lines);
    }

    [[nodiscard]] std::optional<EnergyPanel> energy() const {
        return energyShown_ ? std::optional(energyPanel(monitor_->energyReport(energyRange_), *monitor_,
                                                        monitor_->minutesToLimit()))
                            : std::nullopt;
    }

    void redraw() {
        if (monitor_ != nullptr) {
            static_cast<void>(draw()); // if the terminal is gone, the next cycle says so
        }
    }

    void listen(int signal) {
        if (signal == SIGTSTP) {
            screen_.leave();
            ::raise(SIGSTOP); // comes back when the shell continues the program
            screen_.enter();
            keys_.listen(screen_.takesKeys());
        }
        redraw();
    }

    void press(std::string_view bytes) {
        for (const auto& press : keyPresses(bytes)) {
            act(press);
        }
        redraw();
    }

    void act(const KeyPress& press) {
        switch (press.key) {
        case Key::character:
            act(press.character);
            break;
        case Key::escape:
            energyShown_ = energyShown_ && view_.help; // the way back, one step at a time
            view_.help = false;
            break;
        case Key::up:
            --view_.scrolledBy;
            break;
        case Key::down:
            ++view_.scrolledBy;
            break;
        case Key::pageUp:
            view_.scrolledBy -= page_;
            break;
        case Key::pageDown:
            view_.scrolledBy += page_;
            break;
        case Key::home:
            view_.scrolledBy = 0;
            break;
        case Key::end:
            view_.scrolledBy = WatchView::theEnd;
            break;
        }
    }

    void act(char character) {
        if (character == 'q') {
            ::raise(SIGTERM); // ends the run as a signal from outside does
        } else if (character == '?') {
            view_.help = !view_.help;
        } else if (character == 'e') {
            energyShown_ = !energyShown_;
            view_.scrolledBy = 0;
        } else if (character >= '1') {
            select(static_cast<std::size_t>(character - '1'));
        }
    }

    void select(std::size_t range) {
        if (energyShown_ && range < allEnergyRanges.size()) {
            energyRange_ = allEnergyRanges.at(range);
        } else if (!energyShown_ && range < allTimeRanges.size() && monitor_ != nullptr) {
            monitor_->selectHistoryRange(allTimeRanges.at(range));
        }
    }

    Machine& machine_;
    Platform platform_;
    ColorDepth colors_ = outputColors();
    WatchView view_;
    bool energyShown_ = false; // in place of the cards
    EnergyRange energyRange_ = EnergyRange::today;
    int page_ = 1; // rows by which a page is scrolled
    TerminalScreen screen_;
    KeyListener keys_{screen_.takesKeys(), [this](std::string_view bytes) { press(bytes); }};
    PowerMonitor* monitor_ = nullptr; // that of the run; null before its first cycle
};

Result<void> watchLineByLine(Machine& machine, CycleRun run, OutputForm form) {
    const auto platform = machine.platform();
    run.afterCycle = [&](const PowerMonitor& monitor) {
        return writeToStandardOutput(form == OutputForm::json ? fieldsAsJson(monitor) + '\n'
                                                              : cycleLine(monitor, platform.clock->now()));
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
