// Figures and bars glide to what is new; nothing moves, and nothing is drawn, without a reason.
#include <QAccessible>
#include <QAnimationDriver>
#include <QPointer>
#include <QQuickRenderControl>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/bridge/gliding_text.h"
#include "ui/support/printing.h"
#include "ui/support/shown_view.h"

namespace quelby {
namespace {

// All figures have the same; none where nothing glides.
GlideClock* glideClock(const QQuickItem& view) {
    return view.findChild<GlidingText*>()->clock();
}

// Time that passes only when a test says so.
class Time final : public QAnimationDriver {
public:
    Time() { install(); }

    Time(const Time&) = delete;
    Time& operator=(const Time&) = delete;

    ~Time() override { uninstall(); }

    // Of what glides in the view as well.
    void rule(DashboardView& view) {
        clock_ = glideClock(view.item());
        if (clock_) {
            clock_->setTimed(false);
        }
    }

    void pass(qint64 milliseconds) {
        tick(); // animations begin, and end, in the turn after they were told to
        elapsed_ += milliseconds;
        for (sinceBeat_ += milliseconds; sinceBeat_ >= glideStepDuration; sinceBeat_ -= glideStepDuration) {
            if (clock_) {
                clock_->tick();
            }
        }
        tick();
    }

    // Whether anything moves.
    [[nodiscard]] bool isBusy() const { return isRunning() || clock_->isRunning(); }

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
    qint64 sinceBeat_ = 0;
    QPointer<GlideClock> clock_;
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
        time.rule(view->view());
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
    for (int step = 1; step < glideSteps; ++step) {
        EXPECT_LT(fraction(), last);
        EXPECT_GT(fraction(), 0.2);
        last = fraction();
        time.pass(glideStepDuration);
    }
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
    time.pass(glideStepDuration);
    const double onTheWay = fraction();
    const int shown = std::stoi(levelText());
    setLevel(90);
    EXPECT_EQ(fraction(), onTheWay + (0.9 - onTheWay) * glided(1));
    EXPECT_EQ(std::stoi(levelText()), std::lround(shown + (90 - shown) * glided(1)));
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
        time.rule(view);
        view.setWatched(true);
        view.item().setParentItem(window.contentItem());
        QObject::connect(&control, &QQuickRenderControl::renderRequested, [this] { ++wishes; });
        QObject::connect(&control, &QQuickRenderControl::sceneChanged, [this] { ++wishes; });
        settle();
    }

    void TearDown() override { view.item().setParentItem(nullptr); }

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
    monitor.batteryRateStr = "-3.0%/hr";
    time.pass(20);
    EXPECT_GT(wishes, 0);
}

TEST_F(Drawing, IsNotAskedForWhereNothingChanges) {
    fillEveryCard(monitor); // with the same values
    for (int second = 0; second < 5; ++second) {
        time.pass(1000);
    }
    EXPECT_EQ(wishes, 0);
    EXPECT_FALSE(time.isBusy());
}

TEST_F(Drawing, IsNotAskedForByACardOutOfSightWhichIsRenewedBeforeItIsSeen) {
    const auto before = dashboard.model.history()->today.text;
    monitor.todayWh = 99;
    time.pass(1000);
    EXPECT_EQ(wishes, 0);
    EXPECT_EQ(dashboard.model.history()->today.text, before);
    view.scrollTo(10'000);
    finishTurn();
    EXPECT_NE(dashboard.model.history()->today.text, before);
}

TEST_F(Drawing, IsAskedForByCardsOutOfSightWhereTheyAreReadOut) {
    const auto before = dashboard.model.history()->today.text;
    QAccessible::setActive(true);
    monitor.todayWh = 99;
    time.pass(20);
    QAccessible::setActive(false);
    EXPECT_NE(dashboard.model.history()->today.text, before);
}

TEST_F(Drawing, IsNotAskedForWhileNobodyWatches) {
    view.setWatched(false);
    monitor.batteryPercent = 3;
    monitor.powerHistory = std::vector{1.0, 2.0, 3.0};
    time.pass(1000);
    EXPECT_EQ(wishes, 0);
    EXPECT_FALSE(time.isBusy());
}

TEST_F(Drawing, EndsWithTheAnimations) {
    monitor.batteryPercent = 3;
    time.pass(20);
    EXPECT_TRUE(time.isBusy());
    settle();
    EXPECT_FALSE(time.isBusy());
    time.pass(20);
    EXPECT_EQ(wishes, 0);
}

} // namespace
} // namespace quelby
