// The application: it owns the one monitor, the status item and the popover, and keeps the title in the menu
// bar up to date. Everything runs on the main thread.
#pragma once

#include <memory>

#include "app/desktop.h"
#include "monitor/power_monitor.h"

namespace quelby::app {

class AppDelegate : public std::enable_shared_from_this<AppDelegate> {
    struct Private {
        explicit Private() = default;
    };

public:
    // The platform's parts and the desktop outlive the delegate. Shared, because what calls back later holds
    // it weakly: once it is gone, nothing happens.
    [[nodiscard]] static std::shared_ptr<AppDelegate> create(const Platform& platform,
                                                             const MonitorOptions& options, Desktop& desktop);

    AppDelegate(Private, const Platform& platform, const MonitorOptions& options, Desktop& desktop);

    void applicationDidFinishLaunching();

    // Harmless after the monitor has been stopped already, as the quit button does.
    void applicationWillTerminate();

    void togglePopover();

    // For whoever starts the program a second time.
    void showDashboard();

    // Shows the symbol and the title that the monitor's figures ask for. The status item exists.
    void updateMenuBar();

private:
    void setupStatusItem();
    void setupPopover();
    void startMenuBarTimer();
    void installKeyMonitor();
    void chooseDisplay(MenuBarDisplay display);
    void scrollDisplay(int steps);
    void quit();

    // The action, for as long as the delegate is there.
    [[nodiscard]] std::function<void()> whileHere(void (AppDelegate::*action)());

    Platform platform_;
    Desktop& desktop_;
    StatusItem* statusItem_ = nullptr; // the desktop's, as is the popover; none before the launch
    Popover* popover_ = nullptr;
    std::shared_ptr<PowerMonitor> monitor_;
    std::shared_ptr<RepeatingTimer> menuBarTimer_;
};

} // namespace quelby::app
