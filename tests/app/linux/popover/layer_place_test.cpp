#include "app/linux/popover/layer_place.h"

#include <gtest/gtest.h>

#include "ui/support/printing.h"

namespace quelby::app {
namespace {

constexpr QRect output{100, 50, 1280, 800};
constexpr QSize wholeView{400, 660};
constexpr QMargins air{6, 6, 6, 6};

// As much as the popover's place keeps of a screen of that name.
struct Case {
    const char* name;
    PopoverPlace place;
    QSize free; // as the compositor has it, with some air
    std::uint32_t anchors;
    QMargins margins;
    QSize size;
};

const Case cases[] = {
    {"a compositor that keeps the panel above free",
     {0, {974, 88, 400, 660}, Qt::TopEdge},
     {1268, 758},
     layer::top | layer::right,
     air,
     wholeView},
    {"one that does not: as far below as the place says",
     {0, {974, 88, 400, 660}, Qt::TopEdge},
     {1268, 788},
     layer::top | layer::right,
     {6, 38, 6, 6},
     wholeView},
    {"the same below",
     {0, {974, 148, 400, 660}, Qt::BottomEdge},
     {1268, 788},
     layer::bottom | layer::right,
     {6, 6, 6, 42},
     wholeView},
    {"nearer to the left end",
     {0, {156, 88, 400, 660}, Qt::TopEdge},
     {1268, 758},
     layer::top | layer::left,
     {56, 6, 6, 6},
     wholeView},
    {"a panel at the left that is kept free",
     {0, {148, 184, 400, 660}, Qt::LeftEdge},
     {1228, 788},
     layer::left | layer::bottom,
     air,
     wholeView},
    {"a panel at the right that is not",
     {0, {922, 56, 400, 660}, Qt::RightEdge},
     {1268, 788},
     layer::right | layer::top,
     {6, 6, 58, 6},
     wholeView},
    {"less room than it would like, by the compositor",
     {0, {974, 88, 400, 660}, Qt::TopEdge},
     {1268, 500},
     layer::top | layer::right,
     air,
     {400, 500}},
    {"less room, by the place",
     {0, {974, 88, 400, 300}, Qt::TopEdge},
     {1268, 788},
     layer::top | layer::right,
     {6, 38, 6, 6},
     {400, 300}},
};

TEST(LayerPlace, IsBesideThePanelWhoeverKeepsItFree) {
    for (const auto& each : cases) {
        const auto place = besidePanel(each.place, output, each.free, wholeView);
        EXPECT_EQ(place.anchors, each.anchors) << each.name;
        EXPECT_EQ(place.margins, each.margins) << each.name;
        EXPECT_EQ(place.size, each.size) << each.name;
        EXPECT_EQ(place.keyboard, layer::Keyboard::exclusive) << each.name;
        EXPECT_FALSE(place.amongPanels) << each.name;
    }
}

} // namespace
} // namespace quelby::app
