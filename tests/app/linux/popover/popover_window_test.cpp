#include "app/linux/popover/popover_window.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <gtest/gtest.h>

#include "app/linux/support/eventually.h"
#include "support/fake_platform.h"

namespace quelby::app {
namespace {

class PopoverWindowTest : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<DashboardWindow> makeWindow(PopoverForm form = PopoverForm::ordinary) {
        const PopoverParts parts{.monitor = monitor,
                                 .clock = computer.clock,
                                 .quit = [] {},
                                 .openBatterySettings = [] {},
                                 .appearance = [this] { return Appearance{.animated = animated}; }};
        return std::make_unique<PopoverWindow>(
            parts, form,
            DashboardWindow::Listener{.left = [this] { ++left; },
                                      .wentElsewhere = [this](std::optional<QPoint>) { ++wentElsewhere; },
                                      .closedByFrame = [] {},
                                      .itemFound = [](QPoint) {}});
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

    [[nodiscard]] static QWindow& shownWindow() { return *dashboard().window(); }

    bool animated = false;
    int left = 0;
    int wentElsewhere = 0;
    fake::Computer computer;
    std::shared_ptr<PowerMonitor> monitor = PowerMonitor::create(computer.platform());
};

TEST_F(PopoverWindowTest, ShowsTheCardsWhenItIsMade) {
    const auto window = makeWindow();
    window->show({});
    EXPECT_TRUE(window->isShown());
    EXPECT_FALSE(showsSettings());
}

TEST_F(PopoverWindowTest, KeepsItsSideUntilItIsOpenedAgain) {
    const auto window = makeWindow();
    for (const bool settings : {true, false}) {
        window->show({});
        turnTo(settings);
        window->hide();
        window->show({});
        EXPECT_EQ(showsSettings(), settings);
        window->hide();
    }
}

TEST_F(PopoverWindowTest, ShowsTheSettingsWhereTheyAreAskedFor) {
    const auto window = makeWindow();
    window->show({});
    window->showSettings();
    EXPECT_TRUE(showsSettings());
}

TEST_F(PopoverWindowTest, ShowsTheCardsAgainWhereItIsMadeAnew) {
    auto window = makeWindow();
    window->show({});
    turnTo(true);
    window->hide();
    window.reset();
    window = makeWindow();
    window->show({});
    EXPECT_FALSE(showsSettings());
}

TEST_F(PopoverWindowTest, AtTheItemIsAsHighAsTheScreenAllows) {
    const auto window = makeWindow(PopoverForm::atTheItem);
    window->show({});
    EXPECT_TRUE(window->isShown());
    const auto room = shownWindow().screen()->availableGeometry();
    EXPECT_TRUE(room.contains(shownWindow().geometry()));
    EXPECT_EQ(shownWindow().width(), 400);
    EXPECT_EQ(dashboard().height(), shownWindow().height());
    window->hide();
    EXPECT_FALSE(window->isShown());
}

TEST_F(PopoverWindowTest, GoesOutOfSightGraduallyButIsNotShownAnyMoreAtOnce) {
    animated = true;
    const auto window = makeWindow(PopoverForm::atTheItem);
    window->show({});
    ASSERT_TRUE(eventually([&] { return dashboard().opacity() == 1; }));
    window->hide();
    EXPECT_FALSE(window->isShown());
    EXPECT_TRUE(shownWindow().isVisible());
    window->hide();
    EXPECT_TRUE(eventually([&] { return !shownWindow().isVisible(); }));
    EXPECT_EQ(dashboard().opacity(), 1);
}

TEST_F(PopoverWindowTest, CanBeShownAgainWhileItGoes) {
    animated = true;
    const auto window = makeWindow(PopoverForm::atTheItem);
    window->show({});
    window->hide();
    window->show({});
    EXPECT_TRUE(window->isShown());
    EXPECT_TRUE(eventually([&] { return dashboard().opacity() == 1; }));
    EXPECT_TRUE(shownWindow().isVisible());
}

TEST_F(PopoverWindowTest, IsGoneAtOnceWhereNothingIsToMove) {
    const auto window = makeWindow(PopoverForm::atTheItem);
    window->show({});
    window->hide();
    EXPECT_FALSE(shownWindow().isVisible());
}

TEST_F(PopoverWindowTest, DrawsItsOwnEdgeOnlyAtTheItem) {
    for (const auto form : {PopoverForm::atTheItem, PopoverForm::ordinary}) {
        const auto window = makeWindow(form);
        window->show({});
        EXPECT_EQ(dashboard().property("edged").toBool(), form == PopoverForm::atTheItem);
    }
}

TEST_F(PopoverWindowTest, IsLeftWhenTheFocusStaysAway) {
    const auto window = makeWindow(PopoverForm::atTheItem);
    window->show({});
    ASSERT_TRUE(eventually([&] { return shownWindow().isActive(); }));
    EXPECT_EQ(wentElsewhere, 0);
    QWindow other;
    other.show();
    other.requestActivate();
    EXPECT_TRUE(eventually([this] { return wentElsewhere > 0; }));
}

// A question for a password holds it that long.
TEST_F(PopoverWindowTest, StaysWhenTheFocusIsBackAtOnce) {
    const auto window = makeWindow(PopoverForm::atTheItem);
    window->show({});
    ASSERT_TRUE(eventually([&] { return shownWindow().isActive(); }));
    auto& popover = shownWindow();
    for (const auto type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent event(type, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(&popover, &event);
    }
    QTimer::singleShot(200, &popover, [&popover] { popover.setTitle(QStringLiteral("later")); });
    EXPECT_TRUE(eventually([&] { return popover.title() == QLatin1String("later"); }));
    EXPECT_EQ(wentElsewhere, 0);
}

TEST_F(PopoverWindowTest, IsLeftWithEscape) {
    const auto window = makeWindow(PopoverForm::atTheItem);
    window->show({});
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&shownWindow(), &escape);
    EXPECT_EQ(left, 1);
    EXPECT_EQ(wentElsewhere, 0);
}

} // namespace
} // namespace quelby::app
