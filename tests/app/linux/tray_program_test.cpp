// How the built program begins and ends, on desktops of several kinds.

#include <gmock/gmock.h>

#include "app/linux/support/tray_program.h"
#include "history/history_file.h"
#include "history/support/tables.h"

namespace quelby {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const std::string noTray = "quelby: this desktop has no tray, so the dashboard is an ordinary window\n";

class TrayProgram : public TrayProgramTest {
protected:
    [[nodiscard]] std::int64_t recordedRows() const {
        return Database(historyFile(folder.path())).number("SELECT COUNT(*) FROM readings");
    }

    [[nodiscard]] bool isOnTheBus(const QString& service) {
        const BusObject daemon{"org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus"};
        return peer.call(daemon, "NameHasOwner", {service}).arguments().value(0).toBool();
    }
};

TEST_F(TrayProgram, EndsWithTheSignalsThatASessionSends) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        startInTray();
        program->signal(number);
        const auto end = program->end();
        EXPECT_EQ(end.exitStatus, 0) << number;
        EXPECT_THAT(end.errors, IsEmpty());
        watcher.reset();
    }
}

TEST_F(TrayProgram, EndsCleanlyWithItsPopoverOpen) {
    startInTray();
    pressItem({640, 5});
    static_cast<void>(opened());
    expectCleanEnd();
}

TEST_F(TrayProgram, RecordsTheHistoryAndIsTheOnlyOne) {
    startInTray();
    const auto second = runProgram(words({"--headless"}), environment());
    EXPECT_EQ(second.exitStatus, 1);
    EXPECT_THAT(second.errors, HasSubstr("another Quelby records to"));
    expectCleanEnd();
    EXPECT_GE(recordedRows(), 1);
}

TEST_F(TrayProgram, OnlyShowsAHistoryThatAnotherOneRecords) {
    RunningProgram recorder(words({"--headless"}), environment());
    static_cast<void>(recorder.line());
    startInTray();
    EXPECT_THAT(program->errors(), HasSubstr("so this one only shows its history until that one ends\n"));
    expectCleanEnd();
}

TEST_F(TrayProgram, RecordsOnWhereTheOtherOneEnds) {
    RunningProgram recorder(words({"--headless"}), environment());
    static_cast<void>(recorder.line());
    watcher.emplace("lxqt-panel");
    start({"--fast"});
    ASSERT_TRUE(becomes([&] { return !watcher->items.empty(); }));
    recorder.signal(SIGTERM);
    EXPECT_EQ(recorder.end().exitStatus, 0);
    const auto rows = recordedRows();
    EXPECT_TRUE(becomes([&] { return recordedRows() > rows; }));
    expectCleanEnd();
}

TEST_F(TrayProgram, IsAnOrdinaryWindowWithoutATray) {
    start();
    const auto window = opened();
    EXPECT_EQ(window.area.size(), QSize(400, 660));
    EXPECT_TRUE(screen->hasFrame(window));
    EXPECT_EQ(program->errors(), noTray);
    screen->press({5, 1000}); // elsewhere, which an ordinary window does not mind
    EXPECT_THAT(screen->windows(), SizeIs(1));
    screen->closeByItsFrame(window);
    const auto end = program->end();
    EXPECT_EQ(end.exitStatus, 0) << end.errors;
}

TEST_F(TrayProgram, EndsWithItsOrdinaryWindowByEscape) {
    start();
    static_cast<void>(opened());
    screen->type("Escape");
    const auto end = program->end();
    EXPECT_EQ(end.exitStatus, 0) << end.errors;
}

TEST_F(TrayProgram, IsAnOrdinaryWindowWithoutABus) {
    bus.stop();
    start();
    static_cast<void>(opened());
    EXPECT_EQ(program->errors(), noTray);
    screen->type("ctrl+q");
    const auto end = program->end();
    EXPECT_EQ(end.exitStatus, 0) << end.errors;
}

TEST_F(TrayProgram, GoesIntoATrayThatComesLater) {
    start();
    EXPECT_TRUE(screen->hasFrame(opened()));
    watcher.emplace("lxqt-panel");
    EXPECT_TRUE(closed());
    ASSERT_TRUE(becomes([&] { return !watcher->items.empty(); }));
    pressItem({640, 5});
    EXPECT_FALSE(screen->hasFrame(opened()));
    expectCleanEnd();
}

TEST_F(TrayProgram, WaitsForATrayWhereItWasStartedWithTheSession) {
    start({"--background"});
    const auto service = QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(program->process());
    ASSERT_TRUE(becomes([&] { return isOnTheBus(service); }));
    watcher.emplace("lxqt-panel");
    ASSERT_TRUE(becomes([&] { return !watcher->items.empty(); }));
    EXPECT_THAT(screen->windows(), IsEmpty());
    EXPECT_THAT(program->errors(), IsEmpty());
    pressItem({640, 5});
    static_cast<void>(opened());
    expectCleanEnd();
}

TEST_F(TrayProgram, IsStillTheFirstAfterTheBusWasStartedAgain) {
    startInTray();
    bus.stop();
    watcher.reset();
    bus.start();
    watcher.emplace("lxqt-panel");
    ASSERT_TRUE(becomes([&] { return !watcher->items.empty(); }));
    EXPECT_THAT(program->errors(), IsEmpty());
    EXPECT_THAT(screen->windows(), IsEmpty()); // nor did one come meanwhile
    RunningProgram second(words(), environment());
    EXPECT_EQ(second.end().exitStatus, 0);
    static_cast<void>(opened());
    EXPECT_THAT(watcher->items, SizeIs(1));
    expectCleanEnd();
}

TEST_F(TrayProgram, IsInATrayOfTheOlderKind) {
    ASSERT_TRUE(isInstalled("trayer"));
    const std::vector<std::string> trayer{"/usr/bin/env",      "trayer", "--edge",   "bottom",
                                          "--align",           "right",  "--height", "24",
                                          "--SetPartialStrut", "true"};
    std::optional<RunningProgram> tray(std::in_place, trayer, environment());
    ASSERT_TRUE(eventually([&] { return screen->hasTray(); }));
    start();
    ASSERT_TRUE(becomes([&] { // the title is beside the symbol
        const auto item = screen->docked();
        return item && item->area.width() > 2 * item->area.height();
    }));
    const auto item = *screen->docked();
    screen->press(item.area.center());
    const auto window = opened();
    EXPECT_EQ(window.area.size(), QSize(400, 660));
    EXPECT_TRUE(QRect(0, 0, 1280, 1024).contains(window.area));
    screen->press(item.area.center());
    EXPECT_TRUE(closed());
    EXPECT_THAT(program->errors(), IsEmpty());
    tray->signal(SIGTERM);
    ASSERT_TRUE(becomes([&] { return !screen->docked(); }));
    tray.emplace(trayer, environment()); // and into the next one
    EXPECT_TRUE(becomes([&] { return screen->docked().has_value(); }));
    EXPECT_THAT(screen->windows(), IsEmpty());
    EXPECT_THAT(program->errors(), IsEmpty());
    expectCleanEnd();
}

TEST_F(TrayProgram, GoesIntoATrayOfTheOlderKindThatComesLater) {
    ASSERT_TRUE(isInstalled("trayer"));
    start({"--background"});
    const auto service = QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(program->process());
    ASSERT_TRUE(becomes([&] { return isOnTheBus(service); }));
    const RunningProgram tray({"/usr/bin/env", "trayer"}, environment());
    EXPECT_TRUE(becomes([&] { return screen->docked().has_value(); }));
    EXPECT_THAT(program->errors(), IsEmpty());
    expectCleanEnd();
}

TEST_F(TrayProgram, WaitsForAPanelThatIsRestarted) {
    startInTray();
    const auto service = watcher->items.back();
    for (int i = 0; i < 3; ++i) {
        watcher.reset();
        watcher.emplace(i == 1 ? "waybar" : "lxqt-panel");
        ASSERT_TRUE(becomes([&] { return !watcher->items.empty(); }));
        EXPECT_EQ(watcher->items.back(), service);
        EXPECT_THAT(screen->windows(), IsEmpty());
    }
    pressItem({640, 5});
    EXPECT_FALSE(screen->hasFrame(opened()));
    EXPECT_THAT(program->errors(), IsEmpty());
    expectCleanEnd();
}

TEST_F(TrayProgram, OpensForASecondStartWhileThereIsNoPanelAndStays) {
    startInTray();
    watcher.reset();
    RunningProgram second(words(), environment());
    EXPECT_EQ(second.end().exitStatus, 0);
    EXPECT_FALSE(screen->hasFrame(opened()));
    screen->type("Escape");
    EXPECT_TRUE(closed());
    EXPECT_FALSE(program->hasEnded());
    expectCleanEnd();
}

TEST_F(TrayProgram, QuitsWithEscapeWhereItIsAnOrdinaryWindow) {
    start();
    static_cast<void>(opened());
    screen->type("Escape");
    const auto end = program->end();
    EXPECT_EQ(end.exitStatus, 0) << end.errors;
}

TEST_F(TrayProgram, OpensOnceWithADoublePress) {
    screen->setSettings({{"Net/DoubleClickTime", 2000}});
    startInTray();
    pressItem({640, 5});
    pressItem({640, 5}); // would close it again
    static_cast<void>(opened());
    EXPECT_THAT(screen->windows(), SizeIs(1));
    expectCleanEnd();
}

TEST_F(TrayProgram, OpensOnceWithADoublePressThatThePopoverSeesFirst) {
    screen->setSettings({{"Net/DoubleClickTime", 2000}});
    startInTray();
    pressItem({640, 5});
    static_cast<void>(opened());
    screen->type("Escape"); // the first opening takes its time
    EXPECT_TRUE(closed());
    screen->press({640, 5});
    pressItem({640, 5});
    static_cast<void>(opened());
    screen->press({640, 5}); // would close it
    pressItem({640, 5});     // and then this could not open it again
    EXPECT_THAT(screen->windows(), SizeIs(1));
    screen->press({1200, 1000});
    EXPECT_TRUE(closed());
    expectCleanEnd();
}

TEST_F(TrayProgram, IsOpenAgainAfterTwoQuickPressesOfItsItem) {
    screen->setSettings({{"Net/DoubleClickTime", 2000}});
    startInTray();
    RunningProgram second(words(), environment());
    EXPECT_EQ(second.end().exitStatus, 0);
    static_cast<void>(opened());
    screen->press({640, 5});
    EXPECT_TRUE(closed());
    pressItem({640, 5}); // the same press, by way of the host
    pressItem({640, 5});
    static_cast<void>(opened());
    expectCleanEnd();
}

TEST_F(TrayProgram, EndsCleanlyWithTheScreenAndKeepsItsHistory) {
    leavesAllStanding = true;
    for (const bool open : {false, true}) {
        startInTray();
        if (open) {
            pressItem({640, 5});
            static_cast<void>(opened());
        }
        screen->end();
        const auto end = program->end();
        EXPECT_EQ(end.exitStatus, 0) << end.errors;
        EXPECT_GE(recordedRows(), 1);
        screen.emplace();
        watcher.reset();
    }
}

} // namespace
} // namespace quelby
