#include "app/app_delegate.h"

#include <algorithm>
#include <cassert>

#include "ui/presentation/text/menu_bar_title.h"
#include "ui/presentation/text/words.h"

namespace quelby::app {

namespace {

constexpr auto titleInterval = std::chrono::seconds(1);

// The case that lies so many steps further in the order of the cases, around its ends.
MenuBarDisplay displayBeside(MenuBarDisplay display, int steps) {
    const auto count = static_cast<int>(allMenuBarDisplays.size());
    const auto here = std::find(allMenuBarDisplays.begin(), allMenuBarDisplays.end(), display);
    const auto index = static_cast<int>(here - allMenuBarDisplays.begin());
    const int there = ((index + steps) % count + count) % count;
    return allMenuBarDisplays.at(static_cast<std::size_t>(there));
}

} // namespace

std::shared_ptr<AppDelegate> AppDelegate::create(const Platform& platform, const MonitorOptions& options,
                                                 Desktop& desktop) {
    return std::make_shared<AppDelegate>(Private(), platform, options, desktop);
}

AppDelegate::AppDelegate(Private /*key*/, const Platform& platform, const MonitorOptions& options,
                         Desktop& desktop)
    : platform_(platform), desktop_(desktop), monitor_(PowerMonitor::create(platform, options)) {}

void AppDelegate::applicationDidFinishLaunching() {
    setupStatusItem();
    setupPopover();
    monitor_->startMonitoring();
    monitor_->onUpdate = [runLoop = platform_.runLoop, update = whileHere(&AppDelegate::updateMenuBar)] {
        runLoop->post(update);
    };
    updateMenuBar();
    startMenuBarTimer();
    installKeyMonitor();
}

void AppDelegate::applicationWillTerminate() {
    if (menuBarTimer_) {
        menuBarTimer_->invalidate();
    }
    monitor_->stopMonitoring();
}

std::function<void()> AppDelegate::whileHere(void (AppDelegate::*action)()) {
    return [weak = weak_from_this(), action] {
        if (const auto self = weak.lock()) {
            (self.get()->*action)();
        }
    };
}

void AppDelegate::setupStatusItem() {
    statusItem_ = &desktop_.makeStatusItem();
    if (!statusItem_->hasButton()) {
        return;
    }
    const auto weak = weak_from_this();
    statusItem_->setActions({.toggle = whileHere(&AppDelegate::togglePopover),
                             .showDashboard = whileHere(&AppDelegate::showDashboard),
                             .showSettings =
                                 [weak] {
                                     if (const auto self = weak.lock()) {
                                         self->popover_->showSettings();
                                     }
                                 },
                             .chooseDisplay =
                                 [weak](MenuBarDisplay display) {
                                     if (const auto self = weak.lock()) {
                                         self->chooseDisplay(display);
                                     }
                                 },
                             .scroll =
                                 [weak](int steps) {
                                     if (const auto self = weak.lock()) {
                                         self->scrollDisplay(steps);
                                     }
                                 },
                             .quit = whileHere(&AppDelegate::quit)});
}

void AppDelegate::setupPopover() {
    popover_ = &desktop_.makePopover(monitor_, whileHere(&AppDelegate::quit));
}

void AppDelegate::startMenuBarTimer() {
    menuBarTimer_ = platform_.runLoop->repeat(titleInterval, whileHere(&AppDelegate::updateMenuBar));
}

void AppDelegate::installKeyMonitor() {
    desktop_.addKeyMonitor([weak = weak_from_this()](const KeyDown& key) {
        const auto self = weak.lock();
        const bool quits = self && key.command && key.characters == "q";
        if (quits) {
            self->quit();
        }
        return quits;
    });
}

void AppDelegate::quit() {
    monitor_->stopMonitoring();
    desktop_.terminate();
}

void AppDelegate::togglePopover() {
    if (!statusItem_->hasButton()) {
        return;
    }
    if (popover_->isShown()) {
        popover_->close();
    } else {
        popover_->show();
    }
}

void AppDelegate::showDashboard() {
    popover_->show();
}

void AppDelegate::chooseDisplay(MenuBarDisplay display) {
    monitor_->menuBarDisplay = display;
    updateMenuBar();
}

void AppDelegate::scrollDisplay(int steps) {
    chooseDisplay(displayBeside(monitor_->menuBarDisplay, steps));
}

void AppDelegate::updateMenuBar() {
    assert(statusItem_ != nullptr);
    if (!statusItem_->hasButton()) {
        return;
    }
    statusItem_->setImage(menuBarSymbol(*monitor_), words::program);
    statusItem_->setLevel(monitor_->batteryPercent);
    statusItem_->setTitle(menuBarTitle(*monitor_, monitor_->menuBarDisplay));
    statusItem_->setToolTip(menuBarToolTip(*monitor_));
    statusItem_->setDisplay(monitor_->menuBarDisplay);
}

} // namespace quelby::app
