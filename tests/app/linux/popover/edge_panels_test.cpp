#include "app/linux/popover/edge_panels.h"

#include <atomic>

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QThread>
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/linux/support/private_bus.h"
#include "ui/support/printing.h"

namespace quelby::app {
namespace {

TEST(PlasmaPanels, AreALineEach) {
    EXPECT_EQ(plasmaPanels("0 0 bottom 44\n"), (std::vector<EdgePanel>{{{0, 0}, Qt::BottomEdge, 44}}));
    EXPECT_EQ(plasmaPanels("-1280 0 left 60\n0 800 top 30\n"),
              (std::vector<EdgePanel>{{{-1280, 0}, Qt::LeftEdge, 60}, {{0, 800}, Qt::TopEdge, 30}}));
}

TEST(PlasmaPanels, AreNoneOfWhatIsNotUnderstood) {
    for (const auto* const answer :
         {"", "\n", "0 0 bottom", "0 0 middle 44", "0 0 top 0", "0 0 top -3", "0 x top 30", "0 0 top 30 1",
          "Error: panels is not defined at line 1"}) {
        EXPECT_TRUE(plasmaPanels(answer).empty()) << answer;
    }
}

// In a thread of its own, as it is another program: who asks it waits.
class FakePlasmaShell : public QDBusVirtualObject {
public:
    explicit FakePlasmaShell(const char* first) : answer(first) {
        moveToThread(&thread_);
        thread_.start();
        EXPECT_TRUE(bus_->registerVirtualObject("/PlasmaShell", this));
        EXPECT_TRUE(bus_->registerService("org.kde.plasmashell"));
    }

    FakePlasmaShell(const FakePlasmaShell&) = delete;
    FakePlasmaShell& operator=(const FakePlasmaShell&) = delete;

    ~FakePlasmaShell() override {
        bus_->unregisterObject("/PlasmaShell");
        thread_.quit();
        thread_.wait();
    }

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (const auto* const text = answer.load()) {
            connection.send(message.createReply(QString::fromUtf8(text)));
        } else {
            message.setDelayedReply(true);
        }
        return true;
    }

    std::atomic<const char*> answer; // none: it says nothing

private:
    QThread thread_;
    BusConnection bus_;
};

class PlasmaPanelsOnTheBus : public testing::Test {
protected:
    PrivateBus bus;
    BusConnection asking;
};

TEST_F(PlasmaPanelsOnTheBus, AreAskedForEachTime) {
    FakePlasmaShell shell("0 0 bottom 44");
    EdgePanels panels(*asking, std::chrono::minutes(1));
    EXPECT_EQ(panels.present(), (std::vector<EdgePanel>{{{0, 0}, Qt::BottomEdge, 44}}));
    shell.answer = "0 0 top 30";
    EXPECT_EQ(panels.present(), (std::vector<EdgePanel>{{{0, 0}, Qt::TopEdge, 30}}));
    shell.answer = "";
    EXPECT_THAT(panels.present(), testing::IsEmpty());
}

TEST_F(PlasmaPanelsOnTheBus, AreAsTheyWereWhereTheShellSaysNothing) {
    FakePlasmaShell shell("0 0 bottom 44");
    EdgePanels panels(*asking, std::chrono::milliseconds(1));
    EXPECT_EQ(panels.present(), (std::vector<EdgePanel>{{{0, 0}, Qt::BottomEdge, 44}}));
    shell.answer = nullptr;
    EXPECT_EQ(panels.present(), (std::vector<EdgePanel>{{{0, 0}, Qt::BottomEdge, 44}}));
}

TEST_F(PlasmaPanelsOnTheBus, AreNoneWhereThereIsNoShell) {
    EdgePanels panels(*asking, std::chrono::minutes(1));
    EXPECT_THAT(panels.present(), testing::IsEmpty());
}

constexpr auto outputs = R"([{"name": "A", "rect": {"x": 0, "y": 0, "width": 1280, "height": 800}},
                               {"name": "B", "rect": {"x": 1280, "y": 0, "width": 960, "height": 600}}])";

std::string workspace(QRect area, bool shown) {
    return fmt::format(R"({{"visible": {}, "rect": {{"x": {}, "y": {}, "width": {}, "height": {}}}}})", shown,
                       area.x(), area.y(), area.width(), area.height());
}

TEST(SwayPanels, AreWhatAShownWorkspaceLeaves) {
    const auto list = '[' + workspace({0, 30, 1280, 770}, true) + ',' + workspace({1280, 0, 960, 560}, true) +
                      ',' + workspace({0, 0, 1280, 700}, false) + ']';
    EXPECT_EQ(swayPanels(list, outputs),
              (std::vector<EdgePanel>{{{0, 0}, Qt::TopEdge, 30}, {{1280, 0}, Qt::BottomEdge, 40}}));
}

TEST(SwayPanels, AreNotTheGapsAroundTheWindows) {
    EXPECT_EQ(swayPanels('[' + workspace({10, 10, 1260, 750}, true) + ']', outputs),
              (std::vector<EdgePanel>{{{0, 0}, Qt::BottomEdge, 30}}));
    EXPECT_TRUE(swayPanels('[' + workspace({10, 10, 1260, 780}, true) + ']', outputs).empty());
}

TEST(SwayPanels, AreNoneOfWhatIsNotUnderstood) {
    for (const auto* const list :
         {"", "[", "{}", "[1]", "[{}]", R"([{"visible": true}])", R"([{"visible": true, "rect": 3}])",
          R"([{"visible": true, "rect": {"x": "0", "width": 1280}}])"}) {
        EXPECT_TRUE(swayPanels(list, outputs).empty()) << list;
        EXPECT_TRUE(swayPanels('[' + workspace({0, 30, 1280, 770}, true) + ']', list).empty()) << list;
    }
}

TEST(EdgePanels, KeepTheirEdgeOfTheirScreenFree) {
    const std::vector<EdgePanel> panels{{{0, 0}, Qt::BottomEdge, 44},
                                        {{0, 0}, Qt::BottomEdge, 30},
                                        {{0, 0}, Qt::LeftEdge, 60},
                                        {{1280, 0}, Qt::TopEdge, 20}};
    EXPECT_EQ(reservedBy(panels, QRect(0, 0, 1280, 800)), QMargins(60, 0, 0, 44));
    EXPECT_EQ(reservedBy(panels, QRect(1280, 0, 1280, 800)), QMargins(0, 20, 0, 0));
    EXPECT_EQ(reservedBy({}, QRect(0, 0, 1280, 800)), QMargins());
}

} // namespace
} // namespace quelby::app
