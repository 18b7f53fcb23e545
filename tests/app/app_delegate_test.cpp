#include "app/app_delegate.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_desktop.h"
#include "support/fake_platform.h"
#include "ui/presentation/text/menu_bar_title.h"

namespace quelby::app {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

// A battery and a run loop that write down when they are used.
struct LoggedBattery final : BatterySource {
    fake::Log& log;
    fake::Battery battery;

    explicit LoggedBattery(fake::Log& shared) : log(shared) {}

    BatteryReading readBattery() override {
        log.emplace_back("read the battery");
        return battery.readBattery();
    }
};

struct LoggedTimer final : RepeatingTimer {
    fake::Log& log;
    double seconds;
    std::shared_ptr<RepeatingTimer> timer;

    LoggedTimer(fake::Log& shared, double interval, std::shared_ptr<RepeatingTimer> real)
        : log(shared), seconds(interval), timer(std::move(real)) {}

    void invalidate() override {
        log.push_back(fmt::format("stop the timer of {} s", seconds));
        timer->invalidate();
    }
};

struct LoggedLoop final : RunLoop {
    fake::Log& log;
    fake::Loop loop;

    explicit LoggedLoop(fake::Log& shared) : log(shared) {}

    std::shared_ptr<RepeatingTimer> repeat(std::chrono::duration<double> interval,
                                           std::function<void()> action) override {
        log.push_back(fmt::format("start a timer of {} s", interval.count()));
        return std::make_shared<LoggedTimer>(log, interval.count(), loop.repeat(interval, std::move(action)));
    }

    void post(std::function<void()> action) override {
        log.emplace_back("post");
        loop.post(std::move(action));
    }
};

class AppDelegateTest : public testing::Test {
protected:
    [[nodiscard]] Platform platform() {
        auto platform = computer.platform();
        platform.battery = battery;
        platform.runLoop = runLoop;
        return platform;
    }

    void launch() {
        delegate->applicationDidFinishLaunching();
        log.clear();
    }

    // What has been called since the last time.
    [[nodiscard]] fake::Log calls() { return std::exchange(log, {}); }

    [[nodiscard]] bool press(const KeyDown& key) const { return desktop.keyHandler(key); }

    fake::Log log;
    fake::Computer computer;
    LoggedBattery battery{log};
    LoggedLoop runLoop{log};
    fake::Desktop desktop{log};
    std::shared_ptr<AppDelegate> delegate = AppDelegate::create(platform(), {}, desktop);
};

TEST_F(AppDelegateTest, AsksForNothingBeforeItsLaunch) {
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(AppDelegateTest, LaunchesInOrder) {
    delegate->applicationDidFinishLaunching();
    EXPECT_THAT(calls(), ElementsAre("make the status item", "set the actions", "make the popover",
                                     "read the battery", "start a timer of 3 s", "set the image",
                                     "set the title", "start a timer of 1 s", "add the key monitor"));
    EXPECT_EQ(desktop.item->symbol, "desktopcomputer");
    EXPECT_EQ(desktop.item->description, "Quelby");
    EXPECT_EQ(desktop.item->display, MenuBarDisplay::watts);
}

TEST_F(AppDelegateTest, SharesItsMonitorWithThePopover) {
    launch();
    desktop.monitor->totalPower = 41.4;
    delegate->updateMenuBar();
    EXPECT_EQ(desktop.item->title, " 41W");
    EXPECT_EQ(desktop.item->toolTip, menuBarToolTip(*desktop.monitor));
}

TEST_F(AppDelegateTest, TellsTheStatusItemHowFullTheBatteryIs) {
    launch();
    desktop.monitor->batteryPercent = 72;
    delegate->updateMenuBar();
    EXPECT_EQ(desktop.item->level, 72);
}

TEST_F(AppDelegateTest, WiresNothingWhereThereIsNoButton) {
    desktop.givesButton = false;
    delegate->applicationDidFinishLaunching();
    EXPECT_THAT(calls(), ElementsAre("make the status item", "make the popover", "read the battery",
                                     "start a timer of 3 s", "start a timer of 1 s", "add the key monitor"));
    EXPECT_FALSE(desktop.item->actions.toggle);
    delegate->updateMenuBar();
    delegate->togglePopover();
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AppDelegateTest, RefreshesTheTitleInATurnOfItsOwnAfterEachCycle) {
    launch();
    desktop.monitor->onUpdate();
    EXPECT_THAT(calls(), ElementsAre("post"));
    runLoop.loop.callPosted();
    EXPECT_THAT(calls(), ElementsAre("set the image", "set the title"));
}

TEST_F(AppDelegateTest, RefreshesTheTitleEachSecondToo) {
    launch();
    runLoop.loop.fireTimers(); // a cycle, which posts, and a tick of the title's own
    EXPECT_THAT(calls(), ElementsAre("read the battery", "post", "set the image", "set the title"));
    EXPECT_THAT(runLoop.loop.intervals(), ElementsAre(3, 1));
}

TEST_F(AppDelegateTest, QuitsWithTheCommandKeyAndQ) {
    launch();
    EXPECT_TRUE(press({.command = true, .characters = "q"}));
    EXPECT_THAT(calls(), ElementsAre("stop the timer of 3 s", "terminate"));
}

TEST_F(AppDelegateTest, PassesEveryOtherKeyOn) {
    launch();
    for (const auto& key : {KeyDown{false, "q"}, KeyDown{true, "Q"}, KeyDown{true, "w"}, KeyDown{true, ""},
                            KeyDown{true, "qq"}, KeyDown{false, ""}}) {
        EXPECT_FALSE(press(key)) << key.characters;
    }
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AppDelegateTest, OpensAndClosesThePopoverWithThePressesOfTheItem) {
    launch();
    for (int i = 0; i < 2; ++i) {
        desktop.item->actions.toggle();
        EXPECT_THAT(calls(), ElementsAre("show the popover"));
        desktop.item->actions.toggle();
        EXPECT_THAT(calls(), ElementsAre("close the popover"));
    }
}

TEST_F(AppDelegateTest, OpensAPopoverAgainThatWentAwayByItself) {
    launch();
    delegate->togglePopover();
    desktop.popover->shown = false; // as after a press elsewhere
    delegate->togglePopover();
    EXPECT_THAT(calls(), Each("show the popover"));
}

TEST_F(AppDelegateTest, ShowsTheDashboardHoweverOftenItIsAskedFor) {
    launch();
    desktop.item->actions.showDashboard();
    delegate->showDashboard();
    EXPECT_THAT(calls(), ElementsAre("show the popover", "show the popover"));
    desktop.item->actions.showSettings();
    EXPECT_THAT(calls(), ElementsAre("show the settings"));
}

TEST_F(AppDelegateTest, StopsTheMonitorBeforeItEndsTheProgram) {
    launch();
    desktop.quit();
    EXPECT_THAT(calls(), ElementsAre("stop the timer of 3 s", "terminate"));
    delegate->applicationWillTerminate();
    EXPECT_THAT(calls(), ElementsAre("stop the timer of 1 s"));
    EXPECT_THAT(runLoop.loop.intervals(), IsEmpty());
}

TEST_F(AppDelegateTest, QuitsFromTheMenuOfTheItem) {
    launch();
    desktop.item->actions.quit();
    EXPECT_THAT(calls(), ElementsAre("stop the timer of 3 s", "terminate"));
}

TEST_F(AppDelegateTest, StopsAsOftenAsOneLikes) {
    launch();
    delegate->applicationWillTerminate();
    EXPECT_THAT(calls(), ElementsAre("stop the timer of 1 s", "stop the timer of 3 s"));
    delegate->applicationWillTerminate();
    EXPECT_THAT(runLoop.loop.intervals(), IsEmpty());
}

TEST_F(AppDelegateTest, StopsAlsoBeforeItsLaunch) {
    delegate->applicationWillTerminate();
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AppDelegateTest, KeepsAndShowsTheDisplayThatIsChosen) {
    launch();
    desktop.monitor->amperage = -1520;
    desktop.item->actions.chooseDisplay(MenuBarDisplay::mA);
    EXPECT_EQ(desktop.item->title, " 1520 mA");
    EXPECT_EQ(desktop.item->display, MenuBarDisplay::mA);
    EXPECT_EQ(computer.preferences.text("menuBarDisplay"), "Current (mA)");
}

TEST_F(AppDelegateTest, ScrollsThroughTheDisplaysAroundBothEnds) {
    launch();
    const auto after = [&](int steps) {
        desktop.item->actions.scroll(steps);
        return desktop.item->display;
    };
    EXPECT_EQ(after(1), MenuBarDisplay::percentage);
    EXPECT_EQ(after(-1), MenuBarDisplay::watts);
    EXPECT_EQ(after(-1), MenuBarDisplay::iconOnly);
    EXPECT_EQ(desktop.item->title, "");
    EXPECT_EQ(computer.preferences.text("menuBarDisplay"), "Icon Only");
    EXPECT_EQ(after(1), MenuBarDisplay::watts);
    EXPECT_EQ(after(-8), MenuBarDisplay::temperature);
    EXPECT_EQ(after(15), MenuBarDisplay::percentage);
}

// Everything that may still call after the delegate is gone, among it the item, which is the desktop's.
TEST_F(AppDelegateTest, DoesNothingAnyMoreOnceItIsGone) {
    launch();
    const auto& actions = desktop.item->actions;
    const auto monitor = desktop.monitor;
    monitor->onUpdate();
    delegate.reset();
    log.clear();
    runLoop.loop.callPosted();
    monitor->onUpdate();
    runLoop.loop.callPosted();
    actions.toggle();
    actions.showDashboard();
    actions.showSettings();
    actions.chooseDisplay(MenuBarDisplay::mA);
    actions.scroll(1);
    actions.quit();
    desktop.quit();
    EXPECT_FALSE(press({.command = true, .characters = "q"}));
    EXPECT_THAT(log, ElementsAre("post"));
    EXPECT_EQ(monitor->menuBarDisplay, MenuBarDisplay::watts);
}

TEST_F(AppDelegateTest, LeavesATickThatComesTooLateWithoutEffect) {
    launch();
    desktop.monitor->stopMonitoring();
    delegate.reset();
    log.clear();
    runLoop.loop.fireTimers();
    EXPECT_THAT(log, IsEmpty());
}

} // namespace
} // namespace quelby::app
