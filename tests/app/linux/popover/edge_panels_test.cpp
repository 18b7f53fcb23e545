#include "app/linux/popover/edge_panels.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

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
