#include "app/linux/popover/popover_window.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

#include "support/fake_platform.h"

namespace quelby::app {
namespace {

class PopoverWindowTest : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<DashboardWindow> makeWindow() {
        const PopoverParts parts{.monitor = monitor,
                                 .clock = computer.clock,
                                 .quit = [] {},
                                 .openBatterySettings = [] {},
                                 .appearance = [] { return Appearance{.animated = false}; }};
        return std::make_unique<PopoverWindow>(parts, PopoverForm::ordinary,
                                               DashboardWindow::Listener{.left = [] {},
                                                                         .pressedOutside = [](QPoint) {},
                                                                         .closedByFrame = [] {}});
    }

    // The dashboard in the one window that there is.
    [[nodiscard]] static QQuickItem& dashboard() {
        for (auto* const window : QGuiApplication::topLevelWindows()) {
            if (const auto* const quick = qobject_cast<QQuickWindow*>(window)) {
                return *quick->contentItem()->childItems().front();
            }
        }
        throw std::logic_error("there is no window");
    }

    [[nodiscard]] static bool showsSettings() { return dashboard().property("showSettings").toBool(); }

    // As the buttons in the header do.
    static void turnTo(bool settings) { dashboard().setProperty("showSettings", settings); }

    fake::Computer computer;
    std::shared_ptr<PowerMonitor> monitor = PowerMonitor::create(computer.platform());
};

TEST_F(PopoverWindowTest, ShowsTheCardsWhenItIsMade) {
    const auto window = makeWindow();
    window->show(std::nullopt);
    EXPECT_TRUE(window->isShown());
    EXPECT_FALSE(showsSettings());
}

TEST_F(PopoverWindowTest, KeepsItsSideUntilItIsOpenedAgain) {
    const auto window = makeWindow();
    for (const bool settings : {true, false}) {
        window->show(std::nullopt);
        turnTo(settings);
        window->hide();
        window->show(std::nullopt);
        EXPECT_EQ(showsSettings(), settings);
        window->hide();
    }
}

TEST_F(PopoverWindowTest, ShowsTheSettingsWhereTheyAreAskedFor) {
    const auto window = makeWindow();
    window->show(std::nullopt);
    window->showSettings();
    EXPECT_TRUE(showsSettings());
}

TEST_F(PopoverWindowTest, ShowsTheCardsAgainWhereItIsMadeAnew) {
    auto window = makeWindow();
    window->show(std::nullopt);
    turnTo(true);
    window->hide();
    window.reset();
    window = makeWindow();
    window->show(std::nullopt);
    EXPECT_FALSE(showsSettings());
}

} // namespace
} // namespace quelby::app
