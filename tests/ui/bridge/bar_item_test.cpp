#include "ui/bridge/bar_item.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <gtest/gtest.h>

#include "ui/support/printing.h"

namespace quelby {
namespace {

constexpr QSize barSize(200, 10);

QImage paintedBar(double fraction, double scale, bool fromRight = false) {
    BarItem item;
    item.setSize(barSize);
    item.setTrack(Qt::lightGray);
    item.setFirst(Qt::green);
    item.setLast(Qt::green);
    item.setFraction(fraction);
    item.setFromRight(fromRight);
    QImage picture(QSizeF(barSize.width() * scale, barSize.height() * scale).toSize(),
                   QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    item.paint(&painter);
    return picture;
}

int greenPixels(const QImage& picture) {
    int count = 0;
    for (int x = 0; x < picture.width(); ++x) {
        count += picture.pixelColor(x, picture.height() / 2) == QColor(Qt::green) ? 1 : 0;
    }
    return count;
}

TEST(BarItem, IsFilledAsFarAsItsFraction) {
    EXPECT_EQ(greenPixels(paintedBar(0, 1)), 0);
    EXPECT_NEAR(greenPixels(paintedBar(0.25, 1)), 50, 2);
    EXPECT_NEAR(greenPixels(paintedBar(1, 1)), 200, 2);
}

TEST(BarItem, BeginsAtTheSideWherePeopleBeginToRead) {
    EXPECT_EQ(paintedBar(0.25, 1).pixelColor(25, 5), QColor(Qt::green));
    EXPECT_EQ(paintedBar(0.25, 1, true).pixelColor(25, 5), QColor(Qt::lightGray));
    EXPECT_EQ(paintedBar(0.25, 1, true).pixelColor(175, 5), QColor(Qt::green));
}

class CountingBar : public BarItem {
public:
    void paint(QPainter* painter) override {
        ++paints;
        BarItem::paint(painter);
    }

    int paints = 0;
};

TEST(BarItem, IsDrawnAnewOnlyWhereItLooksDifferent) {
    QQuickWindow window;
    window.resize(barSize);
    CountingBar bar;
    bar.setParentItem(window.contentItem());
    bar.setSize(barSize);
    window.show();
    const auto paintsFor = [&](double fraction) {
        bar.setFraction(fraction);
        static_cast<void>(window.grabWindow());
        return std::exchange(bar.paints, 0);
    };
    EXPECT_GT(paintsFor(0.5), 0);
    EXPECT_EQ(paintsFor(0.502), 0);
    EXPECT_EQ(bar.fraction(), 0.502);
    EXPECT_EQ(paintsFor(0.505), 1);
    bar.setParentItem(nullptr);
}

TEST(BarItem, HasNoSlitAtAnyScale) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const auto picture = paintedBar(0.6, scale);
        const int end = qRound(3 * scale); // round, and drawn with softened edges
        for (int x = end; x < picture.width() - end; ++x) {
            EXPECT_EQ(picture.pixelColor(x, picture.height() / 2).alpha(), 255) << scale << ", " << x;
        }
    }
}

} // namespace
} // namespace quelby
