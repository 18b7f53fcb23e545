#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/days_from_now.h"
#include "ui/support/made_up_dashboard.h"
#include "ui/support/printing.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;
using testing::UnorderedElementsAre;

class DashboardModelTest : public testing::Test {
protected:
    DashboardModelTest() {
        count("header", &DashboardModel::headerChanged);
        count("chargeLimit", &DashboardModel::chargeLimitChanged);
        count("powerBadge", &DashboardModel::powerBadgeChanged);
        count("battery", &DashboardModel::batteryChanged);
        count("components", &DashboardModel::componentsChanged);
        count("processes", &DashboardModel::processesChanged);
        count("trend", &DashboardModel::trendChanged);
        count("history", &DashboardModel::historyChanged);
        count("efficiency", &DashboardModel::efficiencyChanged);
        count("details", &DashboardModel::detailsChanged);
        count("settings", &DashboardModel::settingsChanged);
        count("tip", &DashboardModel::shouldShowChargingTipChanged);
    }

    void count(const char* card, void (DashboardModel::*changed)()) {
        QObject::connect(&dashboard.model, changed, [this, card] {
            ++notifications[card];
            if (onNotification) {
                onNotification(card);
            }
        });
    }

    void watch() {
        dashboard.model.setWatched(true);
        notifications.clear();
    }

    // What the cards have notified since the last call, at the end of this turn.
    std::map<std::string, int> atTheEndOfTheTurn() {
        finishTurn();
        return std::exchange(notifications, {});
    }

    MadeUpDashboard dashboard;
    PowerMonitor& monitor = *dashboard.monitor;
    DashboardModel& model = dashboard.model;
    std::map<std::string, int> notifications;
    std::function<void(const std::string& card)> onNotification;
};

TEST_F(DashboardModelTest, NotifiesEachCardOnceATurnHoweverManyFieldsChanged) {
    watch();
    fillEveryCard(monitor);
    monitor.batteryPercent = 50;
    monitor.batteryPercent = 51;
    EXPECT_THAT(notifications, IsEmpty()); // observers are told before the fields change
    EXPECT_THAT(atTheEndOfTheTurn(),
                UnorderedElementsAre(Pair("chargeLimit", 1), Pair("powerBadge", 1), Pair("battery", 1),
                                     Pair("components", 1), Pair("processes", 1), Pair("trend", 1),
                                     Pair("history", 1), Pair("efficiency", 1), Pair("details", 1)));
    EXPECT_EQ(model.battery()->level.text, "51%");
    EXPECT_THAT(atTheEndOfTheTurn(), IsEmpty());
}

TEST_F(DashboardModelTest, NotifiesOnlyTheCardsThatCameOutDifferent) {
    watch();
    monitor.todayWh = 3;
    EXPECT_THAT(atTheEndOfTheTurn(), ElementsAre(Pair("history", 1)));
    monitor.batteryRateStr = "-3.0%/hr";
    EXPECT_THAT(atTheEndOfTheTurn(), ElementsAre(Pair("battery", 1)));
    monitor.cycleCount = 4;
    EXPECT_THAT(atTheEndOfTheTurn(), ElementsAre(Pair("details", 1)));
    dashboard.computer.clock.time += 1;
    monitor.timeRemaining = "1:00"; // no card shows it
    EXPECT_THAT(atTheEndOfTheTurn(), ElementsAre(Pair("header", 1)));
}

TEST_F(DashboardModelTest, NotifiesNothingWhenNoCardCameOutDifferent) {
    watch();
    monitor.batteryPercent = monitor.batteryPercent.get();
    monitor.historyAvg = 5;
    monitor.historyAvg = 0;
    monitor.todayWh = 0.04; // shown as 0.0
    EXPECT_THAT(atTheEndOfTheTurn(), IsEmpty());
}

TEST_F(DashboardModelTest, MakesTheCardsAnewInEachFurtherTurn) {
    watch();
    for (const Int percent : {10, 20, 30}) {
        monitor.batteryPercent = percent;
        EXPECT_EQ(atTheEndOfTheTurn()["battery"], 1);
        EXPECT_EQ(model.battery()->level.text, std::to_string(percent) + "%");
    }
}

TEST_F(DashboardModelTest, NeitherMakesNorNotifiesAnythingWhileNobodyWatches) {
    fillEveryCard(monitor);
    EXPECT_THAT(atTheEndOfTheTurn(), IsEmpty());
    EXPECT_EQ(model.battery(), BatteryCardValue());
    watch();
    model.setWatched(false);
    monitor.batteryPercent = 13;
    EXPECT_THAT(atTheEndOfTheTurn(), IsEmpty());
    EXPECT_EQ(model.battery()->level.text, "72%");
}

// A monitor's field copies what it holds only for observers.
TEST_F(DashboardModelTest, ObservesNothingWhileNobodyWatches) {
    const auto heldAt = [this] { return monitor.powerHistory.get().data(); };
    monitor.powerHistory = std::vector{1.0, 2.0};
    const auto inPlace = [&] {
        const auto* const before = heldAt();
        monitor.powerHistory.change([](auto& samples) { samples.front() += 1; });
        return heldAt() == before;
    };
    EXPECT_TRUE(inPlace());
    watch();
    EXPECT_FALSE(inPlace());
}

TEST_F(DashboardModelTest, DropsARefreshThatIsDueWhenNobodyWatchesAnyLonger) {
    watch();
    monitor.batteryPercent = 33;
    model.setWatched(false);
    EXPECT_THAT(atTheEndOfTheTurn(), IsEmpty());
    EXPECT_EQ(model.battery()->level.text, "0%");
}

TEST_F(DashboardModelTest, IsFreshAsSoonAsItIsWatched) {
    fillEveryCard(monitor);
    model.setWatched(true);
    EXPECT_EQ(model.battery()->level.text, "72%");
    EXPECT_EQ(model.header()->clock->text.size(), 8U);
    EXPECT_TRUE(model.trend().present());
    EXPECT_EQ(notifications["battery"], 1);
    model.setWatched(false);
    monitor.batteryPercent = 40;
    model.setWatched(true);
    EXPECT_EQ(model.battery()->level.text, "40%");
    EXPECT_EQ(notifications["battery"], 2);
}

TEST_F(DashboardModelTest, TellsWhetherItIsWatched) {
    int changes = 0;
    QObject::connect(&model, &DashboardModel::watchedChanged, [&] { ++changes; });
    for (const bool watched : {true, true, false, false}) {
        model.setWatched(watched);
        EXPECT_EQ(model.isWatched(), watched);
    }
    EXPECT_EQ(changes, 2);
}

TEST_F(DashboardModelTest, HasNoCardThatIsNotShown) {
    fillEveryCard(monitor);
    watch();
    monitor.hasBattery = false;
    monitor.powerHistory = std::vector{1.0, 2.0};
    EXPECT_THAT(atTheEndOfTheTurn(),
                UnorderedElementsAre(Pair("chargeLimit", 1), Pair("powerBadge", 1), Pair("battery", 1),
                                     Pair("trend", 1), Pair("details", 1)));
    EXPECT_EQ(model.battery(), BatteryCardValue());
    EXPECT_FALSE(model.trend().present());
    monitor.todayWh = 3;
    EXPECT_THAT(atTheEndOfTheTurn(), ElementsAre(Pair("history", 1)));
    monitor.hasBattery = true;
    EXPECT_THAT(atTheEndOfTheTurn(), UnorderedElementsAre(Pair("chargeLimit", 1), Pair("powerBadge", 1),
                                                          Pair("battery", 1), Pair("details", 1)));
    EXPECT_EQ(model.battery()->level.text, "72%");
}

// QML holds what it was given last: a card that says the same is not made anew.
TEST_F(DashboardModelTest, KeepsTheRecordOfACardThatSaysTheSame) {
    fillEveryCard(monitor);
    watch();
    const auto* const details = &*model.details();
    const auto* const battery = &*model.battery();
    monitor.batteryRateStr = "-3.0%/hr";
    finishTurn();
    EXPECT_EQ(&*model.details(), details);
    EXPECT_NE(&*model.battery(), battery);
}

TEST_F(DashboardModelTest, LeavesCardsOutOfSightAsTheyAreWhileTheyAreThere) {
    fillEveryCard(monitor);
    watch();
    model.batteryInSight(false);
    monitor.batteryPercent = 12;
    monitor.cpuUsage = 50;
    EXPECT_THAT(atTheEndOfTheTurn(), UnorderedElementsAre(Pair("components", 1), Pair("details", 1)));
    EXPECT_EQ(model.battery()->level.text, "72%");
    monitor.hasBattery = false;
    finishTurn();
    EXPECT_FALSE(model.battery().present());
    monitor.hasBattery = true;
    finishTurn();
    EXPECT_EQ(model.battery()->level.text, "12%");
}

TEST_F(DashboardModelTest, RenewsACardBeforeItIsSeen) {
    fillEveryCard(monitor);
    watch();
    model.batteryInSight(false);
    monitor.batteryPercent = 12;
    static_cast<void>(atTheEndOfTheTurn());
    model.batteryInSight(true);
    EXPECT_THAT(atTheEndOfTheTurn(), ElementsAre(Pair("battery", 1)));
    EXPECT_EQ(model.battery()->level.text, "12%");
    model.batteryInSight(true);
    EXPECT_THAT(atTheEndOfTheTurn(), IsEmpty());
}

TEST_F(DashboardModelTest, HasEveryCardFollowWhereItIsReadOut) {
    watch();
    model.batteryInSight(false);
    model.setReadOut(true);
    monitor.batteryPercent = 12;
    EXPECT_EQ(atTheEndOfTheTurn()["battery"], 1);
    model.setReadOut(false);
    monitor.batteryPercent = 13;
    EXPECT_EQ(atTheEndOfTheTurn()["battery"], 0);
}

TEST_F(DashboardModelTest, MakesOnlyTheSideThatIsShown) {
    watch();
    model.setSettingsShown(true);
    EXPECT_THAT(std::exchange(notifications, {}),
                UnorderedElementsAre(Pair("header", 1), Pair("settings", 1)));
    EXPECT_EQ(model.header()->title, settingsHeader().title);
    EXPECT_FALSE(model.header()->clock.has_value());
    monitor.batteryPercent = 12;
    EXPECT_THAT(atTheEndOfTheTurn(), IsEmpty());
    monitor.launchAtLogin = true;
    EXPECT_THAT(atTheEndOfTheTurn(), ElementsAre(Pair("settings", 1)));
    model.setSettingsShown(false);
    EXPECT_EQ(model.header()->title, dashboardHeader(0).title);
    EXPECT_EQ(model.battery()->level.text, "12%");
}

TEST_F(DashboardModelTest, ShowsTheSettingsOnlyOnceSomebodyWatches) {
    int changes = 0;
    QObject::connect(&model, &DashboardModel::settingsShownChanged, [&] { ++changes; });
    model.setSettingsShown(true);
    model.setSettingsShown(true);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(model.areSettingsShown());
    EXPECT_EQ(model.settings(), SettingsPanelValue());
    model.setWatched(true);
    EXPECT_EQ(model.settings()->version, settingsPanel(monitor, 0, daysFromNow).version);
}

TEST_F(DashboardModelTest, FollowsTheChargingTipOnEitherSide) {
    watch();
    for (const bool settings : {false, true}) {
        model.setSettingsShown(settings);
        notifications.clear();
        monitor.shouldShowChargingTip = true;
        EXPECT_THAT(atTheEndOfTheTurn(), ElementsAre(Pair("tip", 1)));
        EXPECT_TRUE(model.shouldShowChargingTip());
        model.setShouldShowChargingTip(false);
        EXPECT_FALSE(monitor.shouldShowChargingTip);
        EXPECT_THAT(atTheEndOfTheTurn(), ElementsAre(Pair("tip", 1)));
        EXPECT_FALSE(model.shouldShowChargingTip());
    }
}

TEST_F(DashboardModelTest, HasTheTextsThatNeverChangeAlways) {
    EXPECT_EQ(model.quitButton(), LabelValue(quitButton()));
    EXPECT_EQ(model.chargingTip(), DialogValue(chargingTip(linuxWords)));
    EXPECT_EQ(model.uninstallConfirmation(), DialogValue(uninstallConfirmation()));
    EXPECT_TRUE(model.uninstallConfirmation()->destructive);
    dashboard.computer.installer.manager = PackageManager::apt;
    EXPECT_EQ(model.uninstallConfirmation(), DialogValue(uninstallConfirmation(PackageManager::apt)));
}

TEST_F(DashboardModelTest, EndsWithARefreshDue) {
    {
        DashboardModel other(dashboard.monitor, dashboard.computer.clock, {});
        other.setWatched(true);
        monitor.batteryPercent = 5;
    }
    monitor.batteryPercent = 6;
    finishTurn();
    EXPECT_EQ(model.battery(), BatteryCardValue());
}

} // namespace
} // namespace quelby
