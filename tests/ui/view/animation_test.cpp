// Figures and bars glide to what is new; nothing moves, and nothing is drawn, without a reason.
#include <QAccessible>
#include <QAnimationDriver>
#include <QQuickRenderControl>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/presentation/elements/glide.h"
#include "ui/support/printing.h"
#include "ui/support/shown_view.h"

namespace quelby {
namespace {

// Time that passes only when a test says so.
class Time final : public QAnimationDriver {
public:
    Time() { install(); }

    ~Time() override { uninstall(); }

    void pass(qint64 milliseconds) {
        tick(); // animations begin, and end, in the turn after they were told to
        elapsed_ += milliseconds;
        tick();
    }

    // Since it was started.
    [[nodiscard]] qint64 elapsed() const override { return elapsed_; }

protected:
    void start() override {
        elapsed_ = 0;
        QAnimationDriver::start();
    }

private:
    void tick() {
        finishTurn();
        if (isRunning()) {
            advanceAnimation();
        }
        finishTurn();
    }

    qint64 elapsed_ = 0;
};

class Animation : public testing::Test {
protected:
    Animation() { fillEveryCard(monitor); }

    QQuickItem& batteryBar() { return *visibleItems(card("BatteryCard"), "ProportionBar").front(); }

    QQuickItem& level() { return *visibleItems(card("BatteryCard"), "FigureText").front(); }

    QQuickItem& card(const char* type) { return *visibleItems(view->root(), type).front(); }

    double fraction() { return batteryBar().property("fraction").toDouble(); }

    std::string levelText() { return level().property("text").toString().toStdString(); }

    void show(bool animated) {
        view.emplace(dashboard, Appearance{.animated = animated});
        time.pass(1000);
    }

    void setLevel(Int percent) {
        monitor.batteryPercent = percent;
        finishTurn();
    }

    Time time;
    MadeUpDashboard dashboard;
    PowerMonitor& monitor = *dashboard.monitor;
    std::optional<ShownView> view;
};

TEST_F(Animation, TakesBarsAndFiguresToTheirNewValueAndEndsExactlyThere) {
    show(true);
    EXPECT_EQ(fraction(), 0.72);
    setLevel(20);
    double last = 0.72;
    for (int step = 0; step < 3; ++step) {
        EXPECT_LT(fraction(), last);
        EXPECT_GT(fraction(), 0.2);
        last = fraction();
        time.pass(31);
    }
    EXPECT_NE(levelText(), "72%");
    time.pass(1000);
    EXPECT_EQ(fraction(), 0.2);
    EXPECT_EQ(levelText(), "20%");
    EXPECT_EQ(batteryBar().childItems().front()->property("fraction").toDouble(), 0.2);
}

TEST_F(Animation, ShowsFiguresOnTheirWay) {
    show(true);
    setLevel(20);
    const auto text = levelText();
    EXPECT_THAT(text, testing::EndsWith("%"));
    EXPECT_LT(std::stoi(text), 72);
    EXPECT_GT(std::stoi(text), 20);
}

TEST_F(Animation, SetsOutAnewFromWhereItIs) {
    show(true);
    setLevel(20);
    time.pass(60);
    const double onTheWay = fraction();
    const int shown = std::stoi(levelText());
    setLevel(90);
    EXPECT_EQ(fraction(), onTheWay + (0.9 - onTheWay) * glided(0));
    EXPECT_EQ(std::stoi(levelText()), std::lround(shown + (90 - shown) * glided(0)));
    time.pass(1000);
    EXPECT_EQ(fraction(), 0.9);
    EXPECT_EQ(levelText(), "90%");
}

TEST_F(Animation, TellsTheNewFigureAtOnceToThoseWhoCannotSeeIt) {
    show(true);
    QAccessible::setActive(true);
    setLevel(20);
    time.pass(20);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&level())->text(QAccessible::Name), "20%");
    QAccessible::setActive(false);
}

TEST_F(Animation, IsLeftOutWhereTheDesktopDoesNotWantIt) {
    show(false);
    setLevel(20);
    EXPECT_EQ(fraction(), 0.2);
    EXPECT_EQ(levelText(), "20%");
    view->view().setAppearance({.animated = true});
    setLevel(60);
    EXPECT_LT(fraction(), 0.6);
    view->view().setAppearance({.animated = false});
    setLevel(30);
    EXPECT_EQ(fraction(), 0.3);
    EXPECT_EQ(levelText(), "30%");
}

TEST_F(Animation, OfASwitchFollowsTheModel) {
    show(true);
    auto& limit = *visibleItems(card("ChargeLimitCard"), "ToggleSwitch").front();
    const auto* const knob = limit.property("contentItem").value<QQuickItem*>()->childItems().front();
    const double on = knob->x();
    monitor.chargeLimitEnabled = false;
    finishTurn();
    time.pass(40);
    EXPECT_LT(knob->x(), on);
    EXPECT_GT(knob->x(), 2);
    time.pass(1000);
    EXPECT_EQ(knob->x(), 2);
}

// The view in a window that tells when it wants to be drawn.
class Drawing : public testing::Test {
protected:
    Drawing() {
        fillEveryCard(monitor);
        view.setWatched(true);
        view.item().setParentItem(window.contentItem());
        QObject::connect(&control, &QQuickRenderControl::renderRequested, [this] { ++wishes; });
        QObject::connect(&control, &QQuickRenderControl::sceneChanged, [this] { ++wishes; });
        settle();
    }

    ~Drawing() override { view.item().setParentItem(nullptr); }

    void settle() {
        time.pass(1000);
        control.polishItems();
        time.pass(1000);
        wishes = 0;
    }

    Time time;
    MadeUpDashboard dashboard;
    PowerMonitor& monitor = *dashboard.monitor;
    QQuickRenderControl control;
    QQuickWindow window{&control};
    DashboardView view{dashboard.model, {.animated = true}};
    int wishes = 0; // to be drawn
};

TEST_F(Drawing, IsAskedForByWhatChanges) {
    monitor.batteryPercent = 20;
    time.pass(20);
    EXPECT_GT(wishes, 0);
    settle();
    monitor.todayWh = 99;
    time.pass(20);
    EXPECT_GT(wishes, 0);
}

TEST_F(Drawing, IsNotAskedForWhereNothingChanges) {
    fillEveryCard(monitor); // with the same values
    for (int second = 0; second < 5; ++second) {
        time.pass(1000);
    }
    EXPECT_EQ(wishes, 0);
    EXPECT_FALSE(time.isRunning());
}

TEST_F(Drawing, IsNotAskedForWhileNobodyWatches) {
    view.setWatched(false);
    monitor.batteryPercent = 3;
    monitor.powerHistory = std::vector{1.0, 2.0, 3.0};
    time.pass(1000);
    EXPECT_EQ(wishes, 0);
    EXPECT_FALSE(time.isRunning());
}

TEST_F(Drawing, EndsWithTheAnimations) {
    monitor.batteryPercent = 3;
    time.pass(20);
    EXPECT_TRUE(time.isRunning());
    settle();
    EXPECT_FALSE(time.isRunning());
    time.pass(20);
    EXPECT_EQ(wishes, 0);
}

} // namespace
} // namespace quelby
