#include "app/macos/popover_content.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include "support/fake_platform.h"

namespace quelby::app {
namespace {

class PopoverContentTest : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<PopoverContent> makeContent(std::chrono::milliseconds kept) {
        return std::make_unique<PopoverContent>(
            [this] {
                ++models;
                return std::make_unique<DashboardModel>(
                    monitor, computer.clock, ProgramActions{.quit = [] {}, .openBatterySettings = [] {}});
            },
            [] {}, kept);
    }

    [[nodiscard]] static QQuickItem& dashboard(PopoverContent& content) {
        return *content.contentItem()->childItems().front();
    }

    static void turnUntilGivenBack(PopoverContent& content) {
        while (content.isMade()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    fake::Computer computer;
    std::shared_ptr<PowerMonitor> monitor = PowerMonitor::create(computer.platform());
    int models = 0;
};

TEST_F(PopoverContentTest, HasNoDashboardBeforeItIsOpened) {
    const auto content = makeContent(std::chrono::hours(1));
    EXPECT_FALSE(content->isMade());
    content->setAppearance({.dark = true}); // which nobody sees
    EXPECT_EQ(models, 0);
}

TEST_F(PopoverContentTest, KeepsTheDashboardForTheNextOpening) {
    const auto content = makeContent(std::chrono::hours(1));
    content->open({.animated = false});
    content->showSettings();
    content->shut();
    EXPECT_FALSE(content->isVisible());
    content->open({.animated = false});
    EXPECT_TRUE(content->isVisible());
    EXPECT_TRUE(dashboard(*content).property("showSettings").toBool());
    EXPECT_EQ(models, 1);
}

TEST_F(PopoverContentTest, GivesTheDashboardBackSomeTimeAfterItWasShut) {
    const auto content = makeContent(std::chrono::milliseconds(0));
    content->open({.animated = false});
    content->showSettings();
    content->shut();
    turnUntilGivenBack(*content);
    EXPECT_TRUE(content->contentItem()->childItems().isEmpty());
    content->open({.animated = false});
    EXPECT_FALSE(dashboard(*content).property("showSettings").toBool());
    EXPECT_EQ(models, 2);
}

TEST_F(PopoverContentTest, KeepsTheDashboardWhileItIsOpen) {
    const auto content = makeContent(std::chrono::milliseconds(0));
    content->open({.animated = false});
    content->shut();
    content->open({.animated = false}); // before the time is over
    QCoreApplication::processEvents();
    EXPECT_TRUE(content->isMade());
    EXPECT_EQ(models, 1);
}

TEST_F(PopoverContentTest, FollowsAChangeOfTheAppearanceWhileItIsOpen) {
    const auto content = makeContent(std::chrono::hours(1));
    content->open({.animated = false});
    content->setAppearance(
        {.dark = true, .animated = false, .contrast = true, .backdrop = Backdrop::material});
    EXPECT_TRUE(dashboard(*content).property("dark").toBool());
    EXPECT_TRUE(dashboard(*content).property("contrast").toBool());
    EXPECT_TRUE(dashboard(*content).property("material").toBool());
}

TEST_F(PopoverContentTest, IsClearWhereTheDashboardHasNoBackground) {
    const auto content = makeContent(std::chrono::hours(1));
    EXPECT_GT(content->requestedFormat().alphaBufferSize(), 0);
    EXPECT_EQ(content->color().alpha(), 0);
    content->setColor(Qt::red); // to see what would shine through
    content->open({.animated = false, .backdrop = Backdrop::material});
    EXPECT_EQ(content->grabWindow().pixelColor(2, 2), QColor(Qt::red));
    content->setAppearance({.animated = false});
    EXPECT_NE(content->grabWindow().pixelColor(2, 2), QColor(Qt::red));
}

} // namespace
} // namespace quelby::app
