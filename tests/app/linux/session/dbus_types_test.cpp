#include "app/linux/session/dbus_types.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

TEST(DBusPicture, HasItsBytesInNetworkOrderAndNotPremultiplied) {
    QImage image(2, 2, QImage::Format_ARGB32);
    image.setPixel(0, 0, 0xFF112233);
    image.setPixel(1, 0, 0x80FF4020);
    image.setPixel(0, 1, 0x00000000);
    image.setPixel(1, 1, 0x01FFFFFF);
    const auto picture = dbusPicture(image);
    EXPECT_EQ(picture.width, 2);
    EXPECT_EQ(picture.height, 2);
    EXPECT_EQ(picture.bytes.toHex(), "ff11223380ff40200000000001ffffff");
}

TEST(DBusPicture, UndoesTheMultiplicationOfWhatWasPainted) {
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixel(0, 0, qPremultiply(qRgba(255, 255, 255, 51)));
    EXPECT_EQ(dbusPicture(image).bytes.toHex(), "33ffffff");
}

TEST(DBusPicture, OfNothingIsEmpty) {
    const auto picture = dbusPicture(QImage());
    EXPECT_EQ(picture.width, 0);
    EXPECT_EQ(picture.height, 0);
    EXPECT_TRUE(picture.bytes.isEmpty());
}

// The lines of a picture whose width is odd are padded in memory, but not on the bus.
TEST(DBusPicture, HasNothingBetweenItsLines) {
    QImage image(3, 5, QImage::Format_ARGB32);
    image.fill(Qt::red);
    EXPECT_EQ(dbusPicture(image.copy(0, 0, 1, 5)).bytes.size(), 5 * 4);
    EXPECT_EQ(dbusPicture(image).bytes.size(), 3 * 5 * 4);
}

} // namespace
} // namespace quelby::app
