// What a person does with the item and the popover of the built program.

#include <fstream>

#include <QDBusVariant>
#include <gmock/gmock.h>

#include "app/linux/session/dbus_types.h"
#include "app/linux/support/tray_program.h"

namespace quelby {
namespace {

// Sanitizers put freed memory aside for a while, to catch its late use.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool keepsWhatIsFreed = true;
#else
constexpr bool keepsWhatIsFreed = false;
#endif

using testing::IsEmpty;
using testing::StartsWith;

class PopoverProgram : public TrayProgramTest {
protected:
    void SetUp() override {
        TrayProgramTest::SetUp();
        if (!IsSkipped()) {
            startInTray();
        }
    }

    const QPoint place{640, 5};
    const QPoint elsewhere{1200, 1000};
};

struct Edge {
    const char* name;
    QPoint item;
    QPoint window;
};

class PopoverAtAnEdge : public PopoverProgram, public testing::WithParamInterface<Edge> {};

TEST_P(PopoverAtAnEdge, OpensWholeOnTheScreen) {
    pressItem(GetParam().item);
    EXPECT_EQ(opened().area, QRect(GetParam().window, QSize(400, 660)));
    expectCleanEnd();
}

INSTANTIATE_TEST_SUITE_P(Edges, PopoverAtAnEdge,
                         testing::Values(Edge{"Top", {640, 5}, {440, 38}},
                                         Edge{"Bottom", {640, 1019}, {440, 326}},
                                         Edge{"Left", {5, 512}, {38, 182}},
                                         Edge{"Right", {1275, 512}, {842, 182}}),
                         [](const auto& edge) { return std::string(edge.param.name); });

TEST_F(PopoverProgram, ShowsTheFiguresOfTheFirstCycleAtOnce) {
    const auto toolTip = qdbus_cast<app::DBusToolTip>(peer.property(item(), "ToolTip"));
    EXPECT_THAT(toolTip.title.toStdString(), StartsWith("80 % discharging, "));
    EXPECT_THAT(screen->windows(), IsEmpty()); // nothing opens by itself
    EXPECT_THAT(program->errors(), IsEmpty());
    expectCleanEnd();
}

TEST_F(PopoverProgram, OpensAndClosesWithThePressesOfTheItem) {
    for (int i = 0; i < 3; ++i) {
        pressItem(place);
        EXPECT_FALSE(screen->hasFrame(opened()));
        pressItem(place);
        EXPECT_TRUE(closed());
    }
    expectCleanEnd();
}

TEST_F(PopoverProgram, HasWhatIsBehindItBlurredByACompositorThatDoesSo) {
    screen->announceBlur();
    pressItem(place);
    const auto window = opened();
    EXPECT_EQ(screen->blurredBehind(window), QRect(0, 0, 400, 660));
    expectCleanEnd();
}

TEST_F(PopoverProgram, AsksNoCompositorThatBlursNothing) {
    pressItem(place);
    EXPECT_TRUE(screen->blurredBehind(opened()).isNull());
    expectCleanEnd();
}

TEST_F(PopoverProgram, ClosesWithAPressElsewhere) {
    pressItem(place);
    static_cast<void>(opened());
    screen->press(elsewhere);
    EXPECT_TRUE(closed());
    EXPECT_FALSE(program->hasEnded());
    expectCleanEnd();
}

// The popover sees the press before the host of the item hands it on.
TEST_F(PopoverProgram, DoesNotOpenAgainWithThePressThatClosedItButWithTheNext) {
    pressItem(place);
    static_cast<void>(opened());
    screen->press(place);
    EXPECT_TRUE(closed());
    pressItem(place); // the same press, by way of the host
    screen->press(place);
    pressItem(place); // this one would close it, had the one before opened it
    static_cast<void>(opened());
    expectCleanEnd();
}

// Some hosts tell of a corner of the item, or of a place in other units.
TEST_F(PopoverProgram, DoesNotOpenAgainWithThePressThatClosedItWhereverItsHostSaysThatItWas) {
    pressItem(place);
    static_cast<void>(opened());
    screen->press(place);
    EXPECT_TRUE(closed());
    pressItem(place + QPoint(300, 0)); // the same press
    pressItem(place);                  // this one would close it, had the one before opened it
    static_cast<void>(opened());
    expectCleanEnd();
}

TEST_F(PopoverProgram, ClosesWhenTheKeyboardGoesElsewhere) {
    pressItem(place);
    static_cast<void>(opened());
    screen->takeKeyboardAway();
    EXPECT_TRUE(closed());
    EXPECT_FALSE(program->hasEnded());
    expectCleanEnd();
}

TEST_F(PopoverProgram, HasNoEntryInTaskbarAndPager) {
    for (int i = 0; i < 2; ++i) {
        pressItem(place);
        const auto window = opened();
        EXPECT_TRUE(screen->isOutOfWindowLists(window));
        screen->type("Escape");
        EXPECT_TRUE(closed());
        EXPECT_TRUE(becomes([&] { return !screen->isOutOfWindowLists(window); })); // the manager forgets it
    }
    expectCleanEnd();
}

TEST_F(PopoverProgram, ClosesWithEscape) {
    pressItem(place);
    static_cast<void>(opened());
    screen->type("Escape");
    EXPECT_TRUE(closed());
    EXPECT_FALSE(program->hasEnded());
    expectCleanEnd();
}

TEST_F(PopoverProgram, StaysWithAPressInsideAndQuitsWithControlQ) {
    pressItem(place);
    const auto window = opened();
    screen->press(window.area.topLeft() + QPoint(200, 20));
    EXPECT_EQ(opened(), window);
    screen->type("ctrl+q");
    const auto end = program->end();
    EXPECT_EQ(end.exitStatus, 0) << end.errors;
}

TEST_F(PopoverProgram, DoesNothingWithAPlainQ) {
    pressItem(place);
    static_cast<void>(opened());
    screen->type("q");
    screen->type("shift+q");
    screen->type("Escape");
    EXPECT_TRUE(closed());
    pressItem(place);
    static_cast<void>(opened());
    expectCleanEnd();
}

TEST_F(PopoverProgram, OpensForASecondStartWhichEnds) {
    for (int i = 0; i < 2; ++i) { // the second time it is open already
        RunningProgram second(words(), environment());
        const auto end = second.end();
        EXPECT_EQ(end.exitStatus, 0);
        EXPECT_THAT(end.errors, IsEmpty());
        static_cast<void>(opened());
    }
    EXPECT_THAT(watcher->items, testing::SizeIs(1));
    expectCleanEnd();
}

TEST_F(PopoverProgram, OpensFromItsMenuAndQuitsThere) {
    const BusObject menu{item().service, "/MenuBar", "com.canonical.dbusmenu"};
    const auto click = [&](int id) {
        static_cast<void>(
            peer.call(menu, "Event", {id, "clicked", QVariant::fromValue(QDBusVariant(0)), 0U}));
    };
    click(1);
    static_cast<void>(opened());
    click(5);
    const auto end = program->end();
    EXPECT_EQ(end.exitStatus, 0) << end.errors;
}

// What the program alone has, so that it does not matter who else runs: code is shared, memory is not.
long ownKibibytes(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string word; file >> word;) {
        if (long kibibytes = 0; word == "Anonymous:" && file >> kibibytes) {
            return kibibytes;
        }
    }
    ADD_FAILURE() << "the memory of the program is not known";
    return 0;
}

TEST_F(PopoverProgram, OpensAHundredTimesWithoutGrowing) {
    const auto open = [&](int times) {
        for (int i = 0; i < times && !HasFailure(); ++i) {
            pressItem(place);
            static_cast<void>(opened());
            pressItem(place);
            EXPECT_TRUE(closed());
        }
        return ownKibibytes(program->process());
    };
    const auto before = open(10);
    const auto after = open(100);
    RecordProperty("KibibytesBefore", std::to_string(before));
    RecordProperty("KibibytesAfter", std::to_string(after));
    if (!keepsWhatIsFreed) {
        EXPECT_LT(after, before + before / 25) << "KiB; it was " << before; // less than 6 for each time
    }
    expectCleanEnd(); // and under a sanitizer this is where leaks are told
}

} // namespace
} // namespace quelby
