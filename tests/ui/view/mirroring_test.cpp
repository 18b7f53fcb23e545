#include <QGuiApplication>
#include <gtest/gtest.h>

#include "ui/support/shown_view.h"

namespace quelby {
namespace {

class Mirroring : public testing::TestWithParam<bool> {
protected:
    ~Mirroring() override { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    // Where every item is, or would be if the view were seen in a mirror.
    std::vector<QRectF> places(Qt::LayoutDirection direction) {
        QGuiApplication::setLayoutDirection(direction);
        MadeUpDashboard dashboard;
        fillEveryCard(*dashboard.monitor);
        ShownView view(dashboard);
        view.showSettings(GetParam());
        std::vector<QRectF> found;
        names.clear();
        for (const auto* const item : visibleItems(view.root(), "QQuickItem")) {
            auto place = view.placeOf(*item);
            if (place.isEmpty() || enclosing(*item, "FigureWithUnit") != nullptr) {
                continue;
            }
            if (direction == Qt::RightToLeft) {
                place.moveLeft(view.root().width() - place.right());
            }
            found.push_back(place);
            names.push_back(std::string(item->metaObject()->className()) + ' ' +
                            item->property("text").toString().toStdString());
        }
        return found;
    }

    std::vector<std::string> names;
};

TEST_P(Mirroring, PutsEverythingAtTheOtherSide) {
    const auto leftToRight = places(Qt::LeftToRight);
    const auto rightToLeft = places(Qt::RightToLeft);
    ASSERT_EQ(leftToRight.size(), rightToLeft.size());
    for (std::size_t i = 0; i < leftToRight.size(); ++i) {
        EXPECT_NEAR(leftToRight[i].left(), rightToLeft[i].left(), 1.1) << names[i];
        EXPECT_EQ(leftToRight[i].size(), rightToLeft[i].size()) << names[i];
        EXPECT_EQ(leftToRight[i].top(), rightToLeft[i].top()) << names[i];
    }
}

TEST(MirroringOfAFigure, LeavesItsSignBeforeItAndItsUnitBehindIt) {
    const auto distances = [](Qt::LayoutDirection direction) {
        QGuiApplication::setLayoutDirection(direction);
        MadeUpDashboard dashboard;
        fillEveryCard(*dashboard.monitor);
        dashboard.monitor->isPluggedIn = false;
        ShownView view(dashboard);
        std::vector<std::string> texts;
        std::vector<double> found;
        for (const auto* const figure : visibleItems(view.root(), "FigureWithUnit")) {
            for (const auto* const text : visibleItems(*figure, "QQuickText")) {
                texts.push_back(text->property("text").toString().toStdString());
                found.push_back(view.placeOf(*text).left() - view.placeOf(*figure).left());
            }
        }
        EXPECT_EQ(texts, (std::vector<std::string>{"-", "21.0", "W", "64", "/100"}));
        return found;
    };
    const auto leftToRight = distances(Qt::LeftToRight);
    const auto rightToLeft = distances(Qt::RightToLeft);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    ASSERT_EQ(leftToRight.size(), 5U);
    EXPECT_EQ(leftToRight, rightToLeft);
    EXPECT_LT(leftToRight[0], leftToRight[1]);
    EXPECT_LT(leftToRight[1], leftToRight[2]);
    EXPECT_LT(leftToRight[3], leftToRight[4]);
}

TEST_P(Mirroring, AlignsEveryTextWithTheOtherSide) {
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    MadeUpDashboard dashboard;
    fillEveryCard(*dashboard.monitor);
    ShownView view(dashboard);
    view.showSettings(GetParam());
    for (const auto* const text : visibleItems(view.root(), "QQuickText")) {
        if (text->width() - text->property("contentWidth").toDouble() < 1) {
            continue; // it has no side
        }
        const auto asked = text->property("horizontalAlignment").toInt();
        const auto effective = text->property("effectiveHorizontalAlignment").toInt();
        EXPECT_EQ(asked == Qt::AlignHCenter, effective == asked)
            << text->property("text").toString().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(BothSides, Mirroring, testing::Bool(),
                         [](const auto& side) { return std::string(side.param ? "settings" : "cards"); });

} // namespace
} // namespace quelby
