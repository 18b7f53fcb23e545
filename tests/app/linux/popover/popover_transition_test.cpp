#include "app/linux/popover/popover_transition.h"

#include <QQuickItem>
#include <gtest/gtest.h>

namespace quelby::app {
namespace {

TEST(PopoverTransition, ComesOutOfThePanelOnWhicheverSideThatIs) {
    for (const auto& [panel, from] :
         {std::pair(Qt::TopEdge, QPointF(0, -10)), std::pair(Qt::BottomEdge, QPointF(0, 10)),
          std::pair(Qt::LeftEdge, QPointF(-10, 0)), std::pair(Qt::RightEdge, QPointF(10, 0))}) {
        QQuickItem item;
        PopoverTransition transition(item);
        transition.comeIn(panel);
        EXPECT_TRUE(item.position() == from) << panel;
        EXPECT_EQ(item.opacity(), 0);
        transition.end();
        EXPECT_TRUE(item.position() == QPointF()) << panel;
        EXPECT_EQ(item.opacity(), 1);
    }
}

} // namespace
} // namespace quelby::app
