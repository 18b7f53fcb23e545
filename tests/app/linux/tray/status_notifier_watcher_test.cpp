#include "app/linux/tray/status_notifier_watcher.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/linux/support/eventually.h"
#include "app/linux/support/fake_watcher.h"

namespace quelby::app {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class StatusNotifierWatcherTest : public testing::Test {
protected:
    void follow(std::chrono::milliseconds patience) {
        following.emplace(
            *connection,
            StatusNotifierWatcher::Listener{
                .met = [this](const TrayHost& /*host*/) { ++met; },
                .shown = [this](const std::optional<TrayHost>& host) { told.push_back(host.has_value()); }},
            patience);
    }

    [[nodiscard]] bool hasBeenTold(std::size_t times) const {
        return eventually([&] { return told.size() >= times; });
    }

    PrivateBus bus;
    BusConnection connection;
    int met = 0;
    std::vector<bool> told;
    std::optional<StatusNotifierWatcher> following;
};

TEST_F(StatusNotifierWatcherTest, TakesOneThatDoesNotSayForOneThatShowsItemsItself) {
    const FakeWatcher watcher("xfce4-panel");
    follow(0ms);
    ASSERT_TRUE(hasBeenTold(1));
    EXPECT_THAT(told, ElementsAre(true));
}

TEST_F(StatusNotifierWatcherTest, TakesOneWithoutAPanelForNoneButStaysRegisteredWithIt) {
    FakeWatcher watcher("kded5");
    watcher.hasHost = false;
    follow(0ms);
    ASSERT_TRUE(hasBeenTold(1));
    EXPECT_THAT(told, ElementsAre(false));
    EXPECT_EQ(watcher.items.size(), 1U);
    EXPECT_EQ(met, 1);
}

TEST_F(StatusNotifierWatcherTest, NoticesAPanelThatComesLater) {
    FakeWatcher watcher("kded5");
    watcher.hasHost = false;
    follow(0ms);
    ASSERT_TRUE(hasBeenTold(1));
    watcher.setHost(true);
    ASSERT_TRUE(hasBeenTold(2));
    EXPECT_THAT(told, ElementsAre(false, true));
}

TEST_F(StatusNotifierWatcherTest, WaitsForAPanelThatBeginsAfterItsWatcher) {
    FakeWatcher watcher("kded5");
    watcher.hasHost = false;
    follow(1h);
    ASSERT_TRUE(eventually([&] { return !watcher.items.empty(); }));
    watcher.setHost(true);
    ASSERT_TRUE(hasBeenTold(1));
    EXPECT_THAT(told, ElementsAre(true));
}

TEST_F(StatusNotifierWatcherTest, TakesOneThatGoesBeforeItCouldAnswerForOneThatHasShownItems) {
    std::optional<FakeWatcher> watcher("xfce4-panel");
    watcher->isMute = true;
    follow(1h);
    ASSERT_TRUE(eventually([&] { return !watcher->items.empty(); }));
    EXPECT_TRUE(told.empty());
    watcher.reset();
    ASSERT_TRUE(hasBeenTold(2));
    EXPECT_THAT(told, ElementsAre(true, false));
}

TEST_F(StatusNotifierWatcherTest, NoticesThatTheLastPanelIsGone) {
    FakeWatcher watcher("kded5");
    watcher.hasHost = true;
    follow(0ms);
    ASSERT_TRUE(hasBeenTold(1));
    watcher.setHost(false);
    ASSERT_TRUE(hasBeenTold(2));
    EXPECT_THAT(told, ElementsAre(true, false));
}

TEST_F(StatusNotifierWatcherTest, RegistersAgainWithOneThatGivesUpOnTheItemButNotForever) {
    FakeWatcher watcher("gnome-shell");
    follow(0ms);
    ASSERT_TRUE(hasBeenTold(1));
    for (std::size_t times = 1; times < 5; ++times) {
        watcher.giveUp("somebody-else");
        watcher.giveUp(watcher.items.back());
        ASSERT_TRUE(eventually([&] { return watcher.items.size() == times + 1; }));
    }
    watcher.giveUp(watcher.items.back());
    watcher.setHost(false); // which is heard of after it
    ASSERT_TRUE(hasBeenTold(2));
    EXPECT_EQ(watcher.items.size(), 5U);
}

TEST_F(StatusNotifierWatcherTest, TellsOnceOfSeveralPanels) {
    FakeWatcher watcher("kded5");
    watcher.hasHost = true;
    follow(0ms);
    ASSERT_TRUE(hasBeenTold(1));
    watcher.setHost(true);
    watcher.setHost(false);
    ASSERT_TRUE(hasBeenTold(2));
    EXPECT_THAT(told, ElementsAre(true, false));
}

} // namespace
} // namespace quelby::app
