// What the presentation says arrives in QML whole.
#include <QMetaEnum>
#include <QMetaProperty>
#include <gtest/gtest.h>

#include "platform/relative_date.h"
#include "ui/support/made_up_dashboard.h"
#include "ui/support/printing.h"

namespace quelby {
namespace {

// What QML reads of a value by a property's name, and by an index.
QVariant property(const QVariant& value, std::string_view name) {
    const auto* const meta = value.metaType().metaObject();
    const auto index = meta == nullptr ? -1 : meta->indexOfProperty(std::string(name).c_str());
    return index < 0 ? QVariant() : meta->property(index).readOnGadget(value.constData());
}

QVariant rowOf(QVariant list, int index) {
    const auto* const meta = list.metaType().metaObject();
    const auto at = meta->method(meta->indexOfMethod("at(int)"));
    QVariant row(at.returnMetaType());
    EXPECT_TRUE(
        at.invokeOnGadget(list.data(), QGenericReturnArgument(at.typeName(), row.data()), Q_ARG(int, index)));
    return row;
}

bool isPresent(const QVariant& value) {
    const auto present = property(value, "present");
    EXPECT_TRUE(present.isValid());
    return present.toBool();
}

template <typename Member>
void expectSeen(const QVariant& seen, const Member& member);

template <typename Member>
void expectSeen(const QVariant& seen, const std::optional<Member>& member) {
    EXPECT_EQ(isPresent(seen), member.has_value());
    if (member) {
        expectSeen(seen, *member);
    }
}

template <typename Row>
void expectSeen(const QVariant& seen, const std::vector<Row>& rows) {
    const int length = property(seen, "length").toInt();
    ASSERT_EQ(length, static_cast<int>(rows.size()));
    if constexpr (DescribedRecord<Row>) {
        for (int index = 0; index < length; ++index) {
            expectSeen(rowOf(seen, index), rows[static_cast<std::size_t>(index)]);
        }
        EXPECT_FALSE(isPresent(rowOf(seen, length)));
        EXPECT_FALSE(isPresent(rowOf(seen, -1)));
    }
}

void expectSeen(const QVariant& seen, const Color& color) {
    EXPECT_EQ(*seen.value<ColorValue>(), color);
}

template <typename Member>
void expectSeen(const QVariant& seen, const Member& member) {
    if constexpr (DescribedRecord<Member>) {
        EXPECT_TRUE(isPresent(seen));
        forEachMember(member, [&](std::string_view name, const auto& part) {
            SCOPED_TRACE(name);
            expectSeen(property(seen, name), part);
        });
    } else if constexpr (std::is_arithmetic_v<Member>) {
        EXPECT_EQ(seen.metaType(), QMetaType::fromType<Member>());
        EXPECT_EQ(seen.value<Member>(), member);
    } else {
        EXPECT_EQ(seen.metaType(), QMetaType::fromType<QString>());
        EXPECT_EQ(seen.toString().toStdString(), member);
    }
}

class Values : public testing::Test {
protected:
    // Whatever the fields say now, on either side.
    void expectAllSeen() {
        model.setWatched(false);
        model.setSettingsShown(false);
        model.setWatched(true);
        auto cards = quelby::dashboard(monitor, dashboard.computer.clock.now(), linuxWords);
        forEachMember(cards, [this](std::string_view name, const auto& part) {
            SCOPED_TRACE(name);
            expectSeen(model.property(name == "quit" ? "quitButton" : std::string(name).c_str()), part);
        });
        model.setSettingsShown(true);
        expectSeen(model.property("settings"),
                   settingsPanel(monitor, dashboard.computer.clock.now(), relativeDate));
    }

    MadeUpDashboard dashboard;
    PowerMonitor& monitor = *dashboard.monitor;
    DashboardModel& model = dashboard.model;
};

TEST_F(Values, CarryEveryMemberOfEveryRecord) {
    expectAllSeen();
    fillEveryCard(monitor);
    expectAllSeen();
}

TEST_F(Values, CarryThePartsThatAreAbsent) {
    fillEveryCard(monitor);
    monitor.hasBattery = false;
    monitor.powerHistory = std::vector<double>{};
    monitor.historyData = std::vector<HistoryDataPoint>{{1, 2}};
    monitor.topProcesses = std::vector<ProcessInfo_Energy>{};
    expectAllSeen();
    monitor.hasBattery = true;
    monitor.isPluggedIn = false;
    monitor.daemonInstalled = false;
    monitor.lastCalibrationDate = std::nullopt;
    expectAllSeen();
}

TEST_F(Values, CarryTheQuestions) {
    expectSeen(model.property("chargingTip"), chargingTip(linuxWords));
    expectSeen(model.property("uninstallConfirmation"), uninstallConfirmation());
}

TEST_F(Values, HandTheChartsTheirSeriesWithoutACopy) {
    fillEveryCard(monitor);
    model.setWatched(true);
    EXPECT_EQ(&*model.trend().samples(), &model.trend()->samples);
    EXPECT_EQ(&*model.history().points(), &model.history()->points);
}

TEST(RecordValue, OutlivesTheWholeThatItIsPartOf) {
    TextValue text;
    {
        const LabelValue label(
            Label{{"clock", ColorName::red}, secondary("a text of some length, kept alive")});
        text = label.text();
    }
    EXPECT_EQ(text.text(), "a text of some length, kept alive");
}

TEST(RecordValue, ThatIsAbsentHasNothingInIt) {
    const LabelValue label;
    EXPECT_FALSE(label.present());
    EXPECT_FALSE(label.text().present());
    EXPECT_EQ(label.text().text(), "");
    EXPECT_EQ(label.text().color(), ColorValue());
    EXPECT_EQ(LabelList().length(), 0);
    EXPECT_FALSE(LabelList().at(0).present());
}

TEST(RecordValue, IsComparedByWhatItSays) {
    EXPECT_EQ(TextValue(primary("a")), TextValue(primary("a")));
    EXPECT_NE(TextValue(primary("a")), TextValue(secondary("a")));
    EXPECT_EQ(TextValue(), TextValue());
    EXPECT_NE(TextValue(), TextValue(Text()));
    EXPECT_EQ(TextList({primary("a")}), TextList({primary("a")}));
}

TEST(RecordValue, CarriesTextOfUtf8) {
    EXPECT_EQ(TextValue(primary("é★")).text(), QString::fromUtf8("é★"));
}

TEST(ColorValue, BearsTheNameOfTheColour) {
    const auto names = QMetaEnum::fromType<Ink::Name>();
    ASSERT_EQ(names.keyCount(), static_cast<int>(allColorNames.size()));
    for (const auto color : allColorNames) {
        const auto name = ColorValue(color).name();
        EXPECT_EQ(QByteArray(names.valueToKey(name)).toLower(), std::string(text(color)).c_str());
    }
    EXPECT_EQ(ColorValue(Color(ColorName::green, 0.7)).opacity(), 0.7);
}

TEST(BarValue, SaysItsPercentInWords) {
    EXPECT_EQ(BarValue(bar(1, 3, ColorName::red)).percent(), "33%");
    EXPECT_EQ(BarValue(bar(9, 3, ColorName::red)).percent(), "100%");
}

} // namespace
} // namespace quelby
