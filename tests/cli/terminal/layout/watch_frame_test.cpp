#include "cli/terminal/layout/watch_frame.h"

#include <gmock/gmock.h>

#include "cli/terminal/device/terminal_colors.h"
#include "cli/terminal/layout/display_width.h"
#include "support/time_zone.h"

namespace quelby::cli {
namespace {

using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class WatchFrameTest : public testing::Test {
protected:
    WatchFrameTest() {
        fields.batteryPercent = 55;
        fields.totalPower = 12.3;
        fields.daemonInstalled = true;
        fields.chargeLimitEnabled = true;
        fields.powerHistory = {10, 20, 15};
        fields.historyData = {{1'700'000'000, 10}, {1'700'000'060, 20}};
        fields.topProcesses = {{"editor", 30, 2}};
    }

    [[nodiscard]] WatchFrame frame(const WatchView& view) const {
        return watchFrame(dashboard(fields, 1'700'000'000, linuxWords), view);
    }

    [[nodiscard]] std::vector<std::string> lines(const WatchView& view) const {
        std::vector<std::string> plain;
        for (const auto& line : frame(view).lines) {
            plain.push_back(withSequences(line, ColorDepth::none));
        }
        return plain;
    }

    TimeZone zone{"UTC0"};
    PublishedFields fields;
};

TEST_F(WatchFrameTest, FillsTheTerminalWhateverItsSize) {
    for (int columns = 1; columns < 160; columns += 3) {
        for (const int rows : {1, 2, 4, 5, 20, 90}) {
            const auto shown = lines({.size = {columns, rows}});
            ASSERT_EQ(shown.size(), static_cast<std::size_t>(rows));
            for (const auto& line : shown) {
                ASSERT_EQ(displayWidth(line), columns) << line;
            }
        }
    }
}

TEST_F(WatchFrameTest, BeginsWithTheClockAndEndsWithTheKeys) {
    const auto shown = lines({.size = {60, 20}});
    EXPECT_THAT(shown.front(), HasSubstr("Quelby"));
    EXPECT_THAT(shown.front(), HasSubstr("22:13:20"));
    EXPECT_THAT(shown.back(), HasSubstr("q quit   1-4 range   e energy   ? help"));
}

TEST_F(WatchFrameTest, ShowsEveryCardWhereThereIsRoom) {
    const auto shown = lines({.size = {160, 60}});
    const auto said = dashboard(fields, 1'700'000'000, linuxWords);
    for (const auto& text : {said.chargeLimit->title, said.chargeLimit->stopLevel->stopAt[1],
                             said.powerBadge.caption, said.battery->level, said.components.title,
                             said.components.total.label, said.processes.rows[0].name, said.trend->now,
                             said.trend->min, said.history.title, said.history.badges[0].value,
                             said.efficiency.title, said.details->title, *said.details->rows[3].note}) {
        EXPECT_THAT(shown, Contains(HasSubstr(text.text)));
    }
    EXPECT_THAT(shown, Contains(HasSubstr(said.efficiency.stars)));
}

TEST_F(WatchFrameTest, ScrollsToTheEndAndNoFurther) {
    const auto first = frame({.size = {60, 20}});
    EXPECT_GT(first.furthestScroll, 0);
    EXPECT_EQ(first.page, 18);
    const auto end = lines({.size = {60, 20}, .scrolledBy = first.furthestScroll});
    EXPECT_THAT(end.at(18), StartsWith("╰"));
    EXPECT_EQ(lines({.size = {60, 20}, .scrolledBy = WatchView::theEnd}), end);
    EXPECT_EQ(lines({.size = {60, 20}, .scrolledBy = -5}), lines({.size = {60, 20}}));
    EXPECT_EQ(frame({.size = {160, 200}}).furthestScroll, 0);
}

TEST_F(WatchFrameTest, SaysThatThereIsMoreBelow) {
    EXPECT_THAT(lines({.size = {60, 20}}).back(), HasSubstr("↓ more"));
    EXPECT_THAT(lines({.size = {60, 20}, .scrolledBy = WatchView::theEnd}).back(), Not(HasSubstr("more")));
    EXPECT_THAT(lines({.size = {160, 200}}).back(), Not(HasSubstr("more")));
}

TEST_F(WatchFrameTest, ShowsWhereTheEnergyWentInPlaceOfTheCards) {
    fields.rawMaxCapacity = 4000;
    fields.voltage = 12;
    const EnergyReport report{.apps = {{"firefox", 8.2}, {"system", 4}},
                              .sleeps = {{.start = 1'700'000'000, .seconds = 3600, .percentBefore = 50}},
                              .sessions = {{.kind = SessionKind::charge,
                                            .seconds = 7200,
                                            .percentFrom = 40,
                                            .percentTo = 80,
                                            .wattHours = 19.6}}};
    const auto panel = energyPanel(report, fields, 85.0);
    for (const int columns : {40, 80, 120}) {
        const auto shown =
            watchFrame(dashboard(fields, 1'700'000'000, linuxWords), {.size = {columns, 60}}, panel);
        std::string text;
        for (const auto& line : shown.lines) {
            text += withSequences(line, ColorDepth::none) + '\n';
            EXPECT_EQ(displayWidth(withSequences(line, ColorDepth::none)), columns);
        }
        EXPECT_THAT(text, HasSubstr("firefox"));
        EXPECT_THAT(text, HasSubstr("8.2 Wh   17 %"));
        EXPECT_THAT(text, HasSubstr("~1h 25m to the limit of 80%"));
        EXPECT_THAT(text, HasSubstr("12.2 Wh, 25 % of a charge"));
        EXPECT_THAT(text, HasSubstr("drained more than 1 % an hour"));
        EXPECT_THAT(text, HasSubstr("40 to 80 %, 19.6 Wh")) << columns;
        EXPECT_THAT(text, Not(HasSubstr("Top Processes")));
    }
}

TEST_F(WatchFrameTest, ShowsTheKeysInPlaceOfTheCards) {
    const auto shown = lines({.size = {80, 24}, .help = true});
    EXPECT_THAT(shown, Contains(HasSubstr("history of 30 minutes, 1 hour, 24 hours, 7 days")));
    EXPECT_THAT(shown, Each(Not(HasSubstr(powerBadge(fields).caption.text))));
}

TEST_F(WatchFrameTest, LeavesOutWhatADesktopDoesNotHave) {
    const auto ofALaptop = dashboard(fields, 1'700'000'000, linuxWords);
    fields.hasBattery = false;
    fields.powerHistory = {10, 20};
    const auto shown = lines({.size = {160, 60}});
    for (const auto& text : {ofALaptop.chargeLimit->title, ofALaptop.battery->health.text,
                             ofALaptop.details->title, ofALaptop.trend->title}) {
        EXPECT_THAT(shown, Each(Not(HasSubstr(text.text))));
    }
}

TEST_F(WatchFrameTest, OffersTheHelperWhereThereIsNone) {
    const auto stopAt = chargeLimitCard(fields, linuxWords).stopLevel->stopAt[0].text;
    fields.daemonInstalled = false;
    const auto shown = lines({.size = {80, 60}});
    EXPECT_THAT(shown,
                Contains(HasSubstr(chargeLimitCard(fields, linuxWords).offer->installButton.text.text)));
    EXPECT_THAT(shown, Each(Not(HasSubstr(stopAt))));
}

TEST_F(WatchFrameTest, SaysWhatTheHistoryWaitsFor) {
    fields.historyData = {};
    EXPECT_THAT(lines({.size = {80, 80}}), Contains(HasSubstr(historyCard(fields).placeholder->text.text)));
}

TEST_F(WatchFrameTest, ShowsNoNameThatATerminalWouldObey) {
    fields.topProcesses = {{"evil\x1b[2J", 30, 2}};
    EXPECT_THAT(lines({.size = {80, 80}}), Each(Not(HasSubstr("\x1b"))));
}

} // namespace
} // namespace quelby::cli
