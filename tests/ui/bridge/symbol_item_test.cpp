#include <set>

#include <QFile>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "support/days_from_now.h"
#include "ui/bridge/symbol_item.h"
#include "ui/bridge/values.h"
#include "ui/presentation/text/menu_bar_title.h"
#include "ui/support/made_up_dashboard.h"
#include "ui/support/printing.h"

namespace quelby {
namespace {

constexpr int side = 32;
constexpr Date now = 1'700'000'000;

QImage painted(const QString& name, const QColor& color, QSize size = {side, side}) {
    SymbolItem item;
    item.setSize(size);
    item.setName(name);
    item.setColor(color);
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    item.paint(&painter);
    return picture;
}

std::set<QRgb> opaqueColors(const QImage& picture) {
    std::set<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) == 255) {
                colors.insert(picture.pixel(x, y));
            }
        }
    }
    return colors;
}

TEST(SymbolItem, IsPaintedInTheColourThatIsAskedFor) {
    for (const QColor color : {QColor(Qt::red), QColor(1, 2, 3), QColor(Qt::white)}) {
        EXPECT_EQ(opaqueColors(painted("bolt.fill", color)), std::set<QRgb>{color.rgba()});
    }
}

TEST(SymbolItem, IsAsTranslucentAsItsColour) {
    const auto picture = painted("circle.fill", QColor(255, 0, 0, 128));
    EXPECT_TRUE(opaqueColors(picture).empty());
    EXPECT_EQ(qAlpha(picture.pixel(side / 2, side / 2)), 128);
}

TEST(SymbolItem, IsInTheMiddleOfItsItem) {
    const auto picture = painted("circle.fill", Qt::black, {3 * side, side});
    EXPECT_EQ(qAlpha(picture.pixel(side * 3 / 2, side / 2)), 255);
    EXPECT_EQ(qAlpha(picture.pixel(side / 2, side / 2)), 0);
    EXPECT_EQ(qAlpha(picture.pixel(side * 5 / 2, side / 2)), 0);
}

TEST(SymbolItem, ShowsNothingForANameThatNoSymbolHas) {
    for (const auto* name : {"", "no.such.symbol", "bolt.fill.svg"}) {
        EXPECT_EQ(painted(name, Qt::red), painted("", Qt::blue)) << name;
    }
    EXPECT_NE(painted("bolt.fill", Qt::red), painted("", Qt::blue));
}

TEST(SymbolItem, TellsOfAnotherNameAndColour) {
    SymbolItem item;
    int names = 0;
    int colors = 0;
    QObject::connect(&item, &SymbolItem::nameChanged, [&] { ++names; });
    QObject::connect(&item, &SymbolItem::colorChanged, [&] { ++colors; });
    for (int time = 0; time < 2; ++time) {
        item.setName("clock");
        item.setColor(Qt::red);
    }
    EXPECT_EQ(names, 1);
    EXPECT_EQ(colors, 1);
    EXPECT_EQ(item.name(), "clock");
    EXPECT_EQ(item.color(), QColor(Qt::red));
}

// Every name that the records of a dashboard bear, however deep.
class ShownSymbols {
public:
    void collect(const Symbol& symbol) { add(qString(symbol.name)); }

    template <typename Part>
    void collect(const std::optional<Part>& part) {
        if (part) {
            collect(*part);
        }
    }

    template <typename Row>
    void collect(const std::vector<Row>& rows) {
        for (const auto& row : rows) {
            collect(row);
        }
    }

    template <typename Part>
    void collect(const Part& part) {
        if constexpr (DescribedRecord<Part>) {
            forEachMember(part, [this](std::string_view, const auto& member) { collect(member); });
        }
    }

    void add(const QString& name) { names_.insert(name); }

    [[nodiscard]] const std::set<QString>& names() const { return names_; }

private:
    std::set<QString> names_;
};

class EverySymbol : public testing::Test {
protected:
    void look() {
        symbols.collect(dashboard(fields, now, linuxWords));
        symbols.collect(settingsPanel(fields, now, daysFromNow));
        symbols.add(qString(menuBarSymbol(fields)));
    }

    // Each combination of what a battery says.
    void tryBatteryStates() {
        for (int state = 0; state < 16; ++state) {
            fields.isPluggedIn = (state & 1) != 0;
            fields.isCharging = (state & 2) != 0;
            fields.fullyCharged = (state & 4) != 0;
            fields.chargingInhibited = (state & 8) != 0;
            for (const Int percent : {0, 10, 26, 51, 76, 100}) {
                fields.batteryPercent = percent;
                look();
            }
        }
    }

    PublishedFields fields;
    ShownSymbols symbols;
};

TEST_F(EverySymbol, ThatIsEverShownHasAPicture) {
    look();
    fillEveryCard(fields);
    for (const double watts : {5.0, 25.0, 35.0}) {
        fields.totalPower = watts;
        tryBatteryStates();
    }
    fields.daemonInstalled = false;
    fields.hasBattery = false;
    look();
    ASSERT_GT(symbols.names().size(), 30U);
    for (const auto& name : symbols.names()) {
        EXPECT_FALSE(opaqueColors(painted(name, Qt::black)).empty()) << name.toStdString();
    }
}

} // namespace
} // namespace quelby
