#include <set>

#include <QFile>
#include <QImage>
#include <QMetaProperty>
#include <QPainter>
#include <QSequentialIterable>
#include <gtest/gtest.h>

#include "ui/bridge/symbol_item.h"
#include "ui/presentation/menu_bar_title.h"
#include "ui/support/made_up_dashboard.h"
#include "ui/support/printing.h"

namespace quelby {
namespace {

constexpr int side = 32;

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

// Every name that the values of a dashboard bear, however deep.
class ShownSymbols {
public:
    void collect(const QObject& model) {
        for (int i = 0; i < model.metaObject()->propertyCount(); ++i) {
            collect(model.metaObject()->property(i).read(&model));
        }
    }

    void add(const QString& name) {
        if (!name.isEmpty()) { // of what is absent
            names_.insert(name);
        }
    }

    [[nodiscard]] const std::set<QString>& names() const { return names_; }

private:
    void collect(const QVariant& value) {
        if (value.metaType() == QMetaType::fromType<SymbolValue>()) {
            add(value.value<SymbolValue>().name);
        } else if (const auto* const gadget = value.metaType().metaObject()) {
            for (int i = 0; i < gadget->propertyCount(); ++i) {
                collect(gadget->property(i).readOnGadget(value.constData()));
            }
        } else if (value.metaType().id() != QMetaType::QString && value.canConvert<QSequentialIterable>()) {
            for (const auto& element : value.value<QSequentialIterable>()) {
                collect(element);
            }
        }
    }

    std::set<QString> names_;
};

class EverySymbol : public testing::Test {
protected:
    void look() {
        for (const bool settings : {false, true}) {
            dashboard.model.setSettingsShown(settings);
            symbols.collect(dashboard.model);
        }
        symbols.add(qString(menuBarSymbol(*dashboard.monitor)));
    }

    // Each combination of what a battery says.
    void tryBatteryStates() {
        auto& monitor = *dashboard.monitor;
        for (int state = 0; state < 16; ++state) {
            monitor.isPluggedIn = (state & 1) != 0;
            monitor.isCharging = (state & 2) != 0;
            monitor.fullyCharged = (state & 4) != 0;
            monitor.chargingInhibited = (state & 8) != 0;
            for (const Int percent : {0, 10, 26, 51, 76, 100}) {
                monitor.batteryPercent = percent;
                finishTurn();
                look();
            }
        }
    }

    MadeUpDashboard dashboard;
    ShownSymbols symbols;
};

TEST_F(EverySymbol, ThatIsEverShownHasAPicture) {
    auto& monitor = *dashboard.monitor;
    dashboard.model.setWatched(true);
    look();
    fillEveryCard(monitor);
    for (const double watts : {5.0, 25.0, 35.0}) {
        monitor.totalPower = watts;
        tryBatteryStates();
    }
    monitor.daemonInstalled = false;
    monitor.hasBattery = false;
    finishTurn();
    look();
    ASSERT_GT(symbols.names().size(), 30U);
    for (const auto& name : symbols.names()) {
        EXPECT_FALSE(opaqueColors(painted(name, Qt::black)).empty()) << name.toStdString();
    }
}

} // namespace
} // namespace quelby
