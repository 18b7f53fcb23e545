// What the item does and answers when it is called.
#include <gmock/gmock.h>

#include "status_notifier_fixture.h"

namespace quelby::app {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

using CalledItem = StatusNotifierItemTest;

TEST_F(CalledItem, TellsWhereItWasPressed) {
    showAt("lxqt-panel");
    for (const auto* const method : {"Activate", "SecondaryActivate", "ContextMenu"}) {
        done.clear();
        EXPECT_EQ(call(method, {619, 1010}).type(), QDBusMessage::ReplyMessage);
        EXPECT_THAT(pressedAt, Optional(QPoint(619, 1010)));
        EXPECT_THAT(done, ElementsAre("press", "toggle")) << method;
    }
}

TEST_F(CalledItem, TellsNoPlaceThatTheHostMakesUp) {
    for (const auto* const host : {"notification-ar", "waybar"}) {
        showAt(host);
        pressedAt = QPoint();
        EXPECT_EQ(call("Activate", {86, 26}).type(), QDBusMessage::ReplyMessage);
        EXPECT_EQ(pressedAt, std::nullopt);
    }
    showAt("ayatana-indicat");
    EXPECT_EQ(call("XAyatanaSecondaryActivate", {123U}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(pressedAt, std::nullopt);
    EXPECT_THAT(done, ElementsAre("press", "toggle", "press", "toggle", "press", "toggle"));
}

TEST_F(CalledItem, LeavesAPressWithoutEffectThatIsNotToBeActedOn) {
    acts = false;
    showAt("lxqt-panel");
    EXPECT_EQ(call("Activate", {1, 2}).type(), QDBusMessage::ReplyMessage);
    EXPECT_THAT(done, ElementsAre("press"));
}

// Otherwise that host waits for a second press from then on.
TEST_F(CalledItem, AnswersAPressInGnomeWithAnErrorAndActsAllTheSame) {
    showAt("gnome-shell");
    const auto answer = call("Activate", {1500, 16});
    EXPECT_EQ(answer.errorName(), "org.freedesktop.DBus.Error.Failed");
    EXPECT_THAT(pressedAt, Optional(QPoint(1500, 16)));
    EXPECT_THAT(done, ElementsAre("press", "toggle"));
}

TEST_F(CalledItem, ScrollsUpToTheFormerAndDownToTheNextFigure) {
    showAt("lxqt-panel");
    for (const auto& [delta, orientation] : std::vector<std::pair<int, QString>>{{120, "vertical"},
                                                                                 {-60, "vertical"},
                                                                                 {-60, "vertical"},
                                                                                 {-120, "horizontal"},
                                                                                 {0, "vertical"}}) {
        EXPECT_EQ(call("Scroll", {delta, orientation}).type(), QDBusMessage::ReplyMessage);
    }
    EXPECT_THAT(done, ElementsAre("scroll -1", "scroll 1"));
}

TEST_F(CalledItem, ScrollsTheOtherWayWhereTheHostCountsTheOtherWay) {
    showAt("gnome-shell");
    for (const int delta : {1, -1}) {
        EXPECT_EQ(call("Scroll", {delta, "vertical"}).type(), QDBusMessage::ReplyMessage);
    }
    EXPECT_THAT(done, ElementsAre("scroll 1", "scroll -1"));
}

// GNOME tries the call without a place first, and the other one where that is unknown.
TEST_F(CalledItem, TakesTheSecondButtonWithItsPlaceWhereTheHostHasOne) {
    showAt("gnome-shell");
    EXPECT_EQ(call("XAyatanaSecondaryActivate", {123U}).errorName(),
              "org.freedesktop.DBus.Error.UnknownMethod");
    EXPECT_THAT(done, IsEmpty());
    EXPECT_EQ(call("SecondaryActivate", {1500, 16}).errorName(), "org.freedesktop.DBus.Error.Failed");
    EXPECT_THAT(pressedAt, Optional(QPoint(1500, 16)));
    EXPECT_THAT(done, ElementsAre("press", "toggle"));
}

TEST_F(CalledItem, HandsOnTheTokenForTheWindowThatComesNext) {
    showAt("lxqt-panel");
    EXPECT_EQ(call("ProvideXdgActivationToken", {"a-token"}).type(), QDBusMessage::ReplyMessage);
    EXPECT_THAT(tokens, ElementsAre("a-token"));
    EXPECT_THAT(done, IsEmpty());
}

TEST_F(CalledItem, RefusesWhatItDoesNotKnow) {
    showAt("lxqt-panel");
    EXPECT_EQ(call("Dance", {1, 2}).errorName(), "org.freedesktop.DBus.Error.UnknownMethod");
    EXPECT_EQ(peer.call({object.service, object.path, "org.example.Other"}, "Activate", {1, 2}).type(),
              QDBusMessage::ErrorMessage);
    const BusObject properties{object.service, object.path, "org.freedesktop.DBus.Properties"};
    for (const auto* const name : {"XAyatanaLabel", "Dance"}) {
        EXPECT_EQ(peer.call(properties, "Get", {object.interface, name}).errorName(),
                  "org.freedesktop.DBus.Error.UnknownProperty");
    }
    EXPECT_EQ(peer.call(properties, "Get", {"org.example.Other", "Id"}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(
        peer.call(properties, "Set", {object.interface, "Title", QVariant::fromValue(QDBusVariant("Other"))})
            .type(),
        QDBusMessage::ErrorMessage);
    EXPECT_EQ(property("Title").toString(), "Quelby");
    EXPECT_THAT(done, IsEmpty());
}

TEST_F(CalledItem, SurvivesCallsWithOtherArguments) {
    showAt("lxqt-panel");
    for (const auto* const method : {"Activate", "Scroll", "ProvideXdgActivationToken", "ContextMenu"}) {
        static_cast<void>(call(method));
        static_cast<void>(call(method, {"words", QStringList{"and", "more"}}));
    }
    EXPECT_EQ(property("Title").toString(), "Quelby");
}

} // namespace
} // namespace quelby::app
