#include <csignal>

#include <QGuiApplication>

#include "app/app_delegate.h"
#include "app/linux/display.h"
#include "app/linux/linux_desktop.h"
#include "app/linux/session/exit_guard.h"
#include "app/linux/session/own_program.h"
#include "app/linux/session/single_instance.h"
#include "app/linux/session/wayland_compositor.h"
#include "app/recorder_lock.h"
#include "app/tray.h"
#include "console/program.h"
#include "console/signals.h"
#include "console/standard_output.h"

namespace quelby::app {

namespace {

constexpr std::chrono::duration<double> interval{3};
constexpr std::chrono::duration<double> fastInterval{0.05}; // as fast as anybody can follow

// Recorded machines are apart from this one: a demonstration beside the program at work is no second start.
QString serviceName(MachineKind kind) {
    return kind == MachineKind::recorded ? QStringLiteral("com.quelby.Quelby.Replay")
                                         : QStringLiteral("com.quelby.Quelby");
}

class TrayProgram {
public:
    TrayProgram(Machine& machine, const MachineArguments& arguments, const OwnProgram& program,
                FirstOpening firstOpening)
        : platform_(machine.platform())
        , kind_(machine.kind())
        , program_(program)
        , firstOpening_(firstOpening)
        , interval_(arguments.pace == Pace::withoutWaiting ? fastInterval : interval) {}

    [[nodiscard]] Ending run() {
        SessionBus bus;
        std::shared_ptr<AppDelegate> delegate;
        std::optional<SingleInstance> instance;
        const auto claim = [&](const std::optional<QDBusConnection>& connection) {
            instance.reset();
            if (!connection) {
                return SingleInstance::Rank::alone;
            }
            instance.emplace(*connection, serviceName(kind_), [&] {
                if (delegate) {
                    delegate->showDashboard();
                }
            });
            return instance->claim();
        };
        if (claim(bus.connection()) == SingleInstance::Rank::second) {
            return Ending::gone;
        }
        bus.follow([&](const std::optional<QDBusConnection>& now) { static_cast<void>(claim(now)); });
        RecorderLock lock(platform_.folders->applicationSupport());
        LinuxDesktop desktop(bus, platform_, program_, firstOpening_);
        delegate = AppDelegate::create(platform_,
                                       {.interval = interval_,
                                        .history = historyAccess(lock),
                                        .mayRecordNow = [&lock] { return lock.tryAgain(); },
                                        .renewsShownHistory = kind_ == MachineKind::recorded},
                                       desktop);
        const ExitGuard guard([&] { // Qt ends the program by itself where it loses the X server
            delegate->applicationWillTerminate();
            delegate.reset();
        });
        // Before anything is to be seen: what comes until the event loop runs is heard there.
        const SignalListener signals({SIGINT, SIGTERM, SIGHUP, SIGQUIT}, [&](int) { desktop.terminate(); });
        delegate->applicationDidFinishLaunching();
        desktop.start();
        QCoreApplication::exec();
        delegate->applicationWillTerminate();
        delegate.reset();
        return desktop.ending();
    }

private:
    Platform platform_;
    MachineKind kind_;
    const OwnProgram& program_;
    FirstOpening firstOpening_;
    std::chrono::duration<double> interval_; // from one cycle to the next
};

FirstOpening firstOpening(const TrayCommand& command) {
    if (command.show) {
        return FirstOpening::always;
    }
    return command.background ? FirstOpening::never : FirstOpening::withoutTray;
}

Result<Ending> run(const MachineArguments& arguments, const TrayCommand& command, const OwnProgram& program) {
    const auto machine = Machine::make(arguments.machine);
    if (!machine) {
        return tl::make_unexpected(machine.error());
    }
    return TrayProgram(**machine, arguments, program, firstOpening(command)).run();
}

void restoreVariable(const char* name, const QByteArray& before) {
    if (before.isEmpty()) {
        qunsetenv(name);
    } else {
        qputenv(name, before);
    }
}

} // namespace

int runInTray(const MachineArguments& arguments, const TrayCommand& command, char** argv) {
    const auto platform = qgetenv("QT_QPA_PLATFORM");
    const auto display = prepareDisplay();
    if (!display) {
        return reportOutcome("quelby", tl::make_unexpected(display.error()));
    }
    QGuiApplication::setDesktopSettingsAware(false); // the desktop's own toolkit would come along
    QGuiApplication::setDesktopFileName(QStringLiteral("com.quelby.Quelby"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const OwnProgram program;
    auto ending = Ending::gone;
    const int status = runProgramWith<QGuiApplication>("quelby", argv, [&]() -> Result<void> {
        restoreVariable("QT_QPA_PLATFORM", platform); // which was for this program, not for those it starts
        if (isOfWayland(*display)) {
            exitWithCompositor();
        }
        return run(arguments, command, program).map([&](Ending end) { ending = end; });
    });
    if (ending == Ending::gone) {
        return status;
    }
    forgetDisplay();
    return reportOutcome("quelby", tl::make_unexpected(program.startAnew(argv, "--show")));
}

} // namespace quelby::app
