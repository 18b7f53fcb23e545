#include "app/tray.h"

#include <csignal>

#include <QGuiApplication>

#include "app/app_delegate.h"
#include "app/macos/macos_desktop.h"
#include "app/macos/menu_bar_application.h"
#include "app/macos/tabular_digits.h"
#include "app/recorder_lock.h"
#include "console/program.h"
#include "console/signals.h"
#include "console/standard_output.h"
#include "ui/view/dashboard_view.h"

namespace quelby::app {

namespace {

// The lock outlives the monitor.
MonitorOptions monitorOptions(MachineKind kind, Pace pace, RecorderLock& lock) {
    return {.interval = std::chrono::seconds(pace == Pace::withoutWaiting ? 0 : 3),
            .history = historyAccess(lock),
            .mayRecordNow = [&lock] { return lock.tryAgain(); },
            .renewsShownHistory = kind == MachineKind::recorded};
}

void runApplication(const Platform& platform, const MonitorOptions& options, const TrayCommand& command) {
    becomeAccessory();
    QGuiApplication::setFont(withTabularDigits(QGuiApplication::font())); // the system's own
    MacosDesktop desktop(*platform.clock);
    auto delegate = AppDelegate::create(platform, options, desktop);
    const ApplicationEvents events({.didFinishLaunching =
                                        [&] {
                                            delegate->applicationDidFinishLaunching();
                                            if (command.show) {
                                                delegate->showDashboard();
                                            }
                                        },
                                    .willTerminate = [&] { delegate->applicationWillTerminate(); }});
    const SignalListener signals({SIGINT, SIGTERM, SIGHUP, SIGQUIT}, [&](int) { desktop.terminate(); });
    QCoreApplication::exec();
    delegate->applicationWillTerminate(); // Qt leaves its loop without the system's notification
    delegate.reset();
}

Result<void> run(const MachineArguments& arguments, const TrayCommand& command) {
    auto options = arguments.machine;
    options.program = ProgramKind::application;
    const auto machine = Machine::make(options);
    if (!machine) {
        return tl::make_unexpected(machine.error());
    }
    const auto platform = (*machine)->platform();
    RecorderLock lock(platform.folders->applicationSupport());
    runApplication(platform, monitorOptions((*machine)->kind(), arguments.pace, lock), command);
    return {};
}

} // namespace

// The system itself starts an application no second time.
int runInTray(const MachineArguments& arguments, const TrayCommand& command, char** argv) {
    drawWithoutGpu();
    qputenv("QV4_FORCE_INTERPRETER", "1"); // the hardened runtime has no memory for what QML would compile
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return runProgramWith<QGuiApplication>("quelby", argv, [&] { return run(arguments, command); });
}

} // namespace quelby::app
