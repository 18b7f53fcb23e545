#include "app/linux/tray/tray_menu.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/linux/support/bus_peer.h"
#include "ui/presentation/text/words.h"

namespace quelby::app {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// What a host sends for several presses at once: a(isvu).
struct MenuEvent {
    int id = 0;
    QString event;
};

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event) {
    argument.beginStructure();
    argument << event.id << event.event << QDBusVariant(0) << 0U;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event) {
    QDBusVariant data;
    uint time = 0;
    argument.beginStructure();
    argument >> event.id >> event.event >> data >> time;
    argument.endStructure();
    return argument;
}

std::string textOf(const QVariantMap& row, const char* name) {
    return row.value(name).toString().toStdString();
}

class TrayMenuTest : public testing::Test {
protected:
    TrayMenuTest() {
        registerDBusTypes();
        peer.listen(connection->baseService());
    }

    [[nodiscard]] QDBusMessage call(const QString& method, const QVariantList& arguments = {}) {
        return peer.call(object, method, arguments);
    }

    [[nodiscard]] DBusMenuRow layout(int id = 0) {
        const auto answer = call("GetLayout", {id, -1, QStringList()});
        EXPECT_THAT(answer.arguments(), SizeIs(2)) << answer.errorMessage().toStdString();
        revision = answer.arguments().value(0).toUInt();
        return qdbus_cast<DBusMenuRow>(answer.arguments().value(1));
    }

    // Every row as it reads, the chosen one with a mark.
    [[nodiscard]] std::vector<std::string> rows() {
        std::vector<std::string> texts;
        for (const auto& row : layout().rows) {
            const auto label = textOf(row.properties, "label");
            const bool chosen = row.properties.value("toggle-state").toInt() == 1;
            texts.push_back(label.empty() ? textOf(row.properties, "type") : (chosen ? "* " : "") + label);
        }
        return texts;
    }

    void click(int id) {
        static_cast<void>(
            call("Event", {id, "clicked", QVariant::fromValue(QDBusVariant(0)), QVariant::fromValue(0U)}));
    }

    PrivateBus bus;
    BusConnection connection;
    BusPeer peer;
    std::vector<std::string> done;
    uint revision = 0;
    StatusItemActions actions{
        .toggle = [this] { done.emplace_back("toggle"); },
        .showDashboard = [this] { done.emplace_back("dashboard"); },
        .showSettings = [this] { done.emplace_back("settings"); },
        .chooseDisplay = [this](MenuBarDisplay chosen) { done.emplace_back(rawValue(chosen)); },
        .scroll = [this](int) { done.emplace_back("scroll"); },
        .quit = [this] { done.emplace_back("quit"); }};
    TrayMenu menu{*connection, "/MenuBar", actions};
    BusObject object{connection->baseService(), "/MenuBar", "com.canonical.dbusmenu"};
};

TEST_F(TrayMenuTest, HasTheDashboardTheDisplaysTheSettingsAndTheWayOut) {
    EXPECT_THAT(rows(), ElementsAre(words::showDashboard, "separator", "* Power (W)", "Battery %",
                                    "Current (mA)", "Voltage (V)", "Temperature", "Icon Only", "separator",
                                    words::settings, words::quit));
}

TEST_F(TrayMenuTest, MarksTheDisplaysAsChoicesOfWhichOneHolds) {
    int choices = 0;
    int chosen = 0;
    for (const auto& row : layout().rows) {
        choices += textOf(row.properties, "toggle-type") == "radio" ? 1 : 0;
        chosen += row.properties.value("toggle-state", 0).toInt();
    }
    EXPECT_EQ(choices, 6);
    EXPECT_EQ(chosen, 1);
}

TEST_F(TrayMenuTest, TellsOfAnotherDisplayAndOfNoneThatIsTheSame) {
    static_cast<void>(rows());
    const auto before = revision;
    menu.setDisplay(MenuBarDisplay::voltage);
    EXPECT_THAT(peer.signalsSoFar(object), ElementsAre("LayoutUpdated"));
    EXPECT_THAT(rows(), testing::Contains("* Voltage (V)"));
    EXPECT_EQ(revision, before + 1);
    EXPECT_EQ(peer.lastArguments("LayoutUpdated"), (QVariantList{revision, 0}));
    menu.setDisplay(MenuBarDisplay::voltage);
    EXPECT_THAT(peer.signalsSoFar(object), IsEmpty());
}

TEST_F(TrayMenuTest, DoesWhatEachOfItsRowsSays) {
    for (const auto& row : layout().rows) {
        click(row.id);
    }
    EXPECT_THAT(done, ElementsAre("dashboard", "Power (W)", "Battery %", "Current (mA)", "Voltage (V)",
                                  "Temperature", "Icon Only", "settings", "quit"));
}

TEST_F(TrayMenuTest, DoesNothingForOtherEventsAndOtherRows) {
    for (const auto* const event : {"hovered", "opened", "closed"}) {
        static_cast<void>(call("Event", {1, event, QVariant::fromValue(QDBusVariant(0)), 0U}));
    }
    for (const int id : {0, 6, 9, 16, 999, -1}) {
        click(id);
    }
    EXPECT_THAT(done, IsEmpty());
}

TEST_F(TrayMenuTest, TakesSeveralEventsAtOnce) {
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
    const QList<MenuEvent> events{{1, "hovered"}, {1, "clicked"}, {4, "clicked"}};
    EXPECT_EQ(call("EventGroup", {QVariant::fromValue(events)}).type(), QDBusMessage::ReplyMessage);
    EXPECT_THAT(done, ElementsAre("dashboard", "settings"));
}

TEST_F(TrayMenuTest, GivesOneRowWithoutTheOthers) {
    const auto row = layout(4);
    EXPECT_EQ(row.id, 4);
    EXPECT_EQ(textOf(row.properties, "label"), words::settings);
    EXPECT_THAT(row.rows, IsEmpty());
}

TEST_F(TrayMenuTest, GivesThePropertiesOfTheRowsThatAreAskedForOrOfAll) {
    const auto properties = [&](const QList<int>& ids) {
        const auto answer = call("GetGroupProperties", {QVariant::fromValue(ids), QStringList()});
        return qdbus_cast<DBusMenuPropertiesList>(answer.arguments().value(0));
    };
    const auto two = properties({5, 10});
    ASSERT_THAT(two, SizeIs(2));
    EXPECT_EQ(two[0].id, 5);
    EXPECT_EQ(textOf(two[0].properties, "label"), words::quit);
    EXPECT_EQ(textOf(two[1].properties, "toggle-type"), "radio");
    EXPECT_THAT(properties({}), SizeIs(12));
}

TEST_F(TrayMenuTest, GivesOneProperty) {
    const auto answer = call("GetProperty", {4, "label"});
    EXPECT_EQ(answer.arguments().value(0).value<QDBusVariant>().variant().toString().toStdString(),
              words::settings);
}

TEST_F(TrayMenuTest, NeedsNothingToBeReadBeforeItIsShown) {
    EXPECT_EQ(call("AboutToShow", {0}).arguments(), QVariantList{false});
    EXPECT_EQ(call("AboutToShowGroup", {QVariant::fromValue(QList<int>{0})}).type(),
              QDBusMessage::ReplyMessage);
}

TEST_F(TrayMenuTest, SaysWhichVersionOfTheProtocolItSpeaks) {
    EXPECT_EQ(peer.property(object, "Version").toUInt(), 3U);
    EXPECT_EQ(peer.property(object, "Status").toString(), "normal");
}

TEST_F(TrayMenuTest, RefusesWhatItDoesNotKnow) {
    EXPECT_EQ(call("Dance").errorName(), "org.freedesktop.DBus.Error.UnknownMethod");
    EXPECT_EQ(call("GetLayout").errorName(), "org.freedesktop.DBus.Error.UnknownMethod");
}

TEST_F(TrayMenuTest, SurvivesCallsWithOtherArguments) {
    const QVariantList strange{QStringList{"words"}, "words", QVariant::fromValue(QDBusVariant(1))};
    for (const auto* const method : {"GetLayout", "GetGroupProperties", "GetProperty", "Event", "EventGroup",
                                     "AboutToShow", "AboutToShowGroup"}) {
        for (const auto& argument : strange) {
            static_cast<void>(call(method, {argument}));
            static_cast<void>(call(method, {argument, argument, argument, argument}));
        }
    }
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
    const auto events = QVariant::fromValue(QList<MenuEvent>{{1, "clicked"}});
    static_cast<void>(call("GetGroupProperties", {events, QStringList()}));
    static_cast<void>(call("EventGroup", {QVariant::fromValue(QList<int>{1})}));
    EXPECT_THAT(done, IsEmpty());
    EXPECT_THAT(rows(), SizeIs(11));
}

} // namespace
} // namespace quelby::app
