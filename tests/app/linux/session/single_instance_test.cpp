#include "app/linux/session/single_instance.h"

#include <deque>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/linux/support/bus_peer.h"
#include "support/running_program.h"

namespace quelby::app {
namespace {

using testing::IsEmpty;

RunningProgram start() {
    return RunningProgram({QUELBY_BINARY_DIR "/second_start"});
}

class SingleInstanceTest : public testing::Test {
protected:
    PrivateBus bus;
};

TEST_F(SingleInstanceTest, IsTheFirstAndIsShownByTheSecond) {
    auto first = start();
    EXPECT_EQ(first.line(), "first");
    for (int i = 0; i < 2; ++i) {
        auto second = start();
        EXPECT_EQ(second.line(), "second");
        EXPECT_EQ(second.end().exitStatus, 0);
        EXPECT_EQ(first.line(), "show");
    }
}

TEST_F(SingleInstanceTest, IsTheFirstAgainOnceTheFirstHasGone) {
    auto first =
        std::make_unique<RunningProgram>(std::vector<std::string>{QUELBY_BINARY_DIR "/second_start"});
    EXPECT_EQ(first->line(), "first");
    first.reset();
    EXPECT_EQ(start().line(), "first");
}

TEST_F(SingleInstanceTest, IsAloneWhereTheBusTakesNoNames) {
    bus.stop();
    bus.start(PrivateBus::Names::nobodys);
    auto one = start();
    EXPECT_EQ(one.line(), "alone");
    EXPECT_EQ(one.end().exitStatus, 0);
}

TEST_F(SingleInstanceTest, IsOneOfFiveThatStartAtOnce) {
    std::deque<RunningProgram> programs;
    for (int i = 0; i < 5; ++i) {
        programs.emplace_back(std::vector<std::string>{QUELBY_BINARY_DIR "/second_start"});
    }
    RunningProgram* first = nullptr;
    int seconds = 0;
    for (auto& program : programs) {
        const auto rank = program.line();
        if (rank == "first") {
            EXPECT_EQ(first, nullptr);
            first = &program;
        } else {
            EXPECT_EQ(rank, "second");
            ++seconds;
        }
    }
    EXPECT_EQ(seconds, 4);
    ASSERT_NE(first, nullptr);
    for (int i = 0; i < seconds; ++i) {
        EXPECT_EQ(first->line(), "show");
    }
}

// The other ways that a launcher has.
TEST_F(SingleInstanceTest, IsAnApplicationOfTheSession) {
    auto first = start();
    EXPECT_EQ(first.line(), "first");
    BusPeer peer;
    const BusObject application{"com.quelby.Test", "/com/quelby/Test", "org.freedesktop.Application"};
    EXPECT_EQ(peer.call(application, "Open", {QStringList(), QVariantMap()}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(first.line(), "show");
    EXPECT_EQ(peer.call(application, "ActivateAction", {"dance", QVariantList(), QVariantMap()}).type(),
              QDBusMessage::ReplyMessage); // there is no such action
    EXPECT_EQ(peer.call(application, "Dance").errorName(), "org.freedesktop.DBus.Error.UnknownMethod");
    EXPECT_EQ(peer.call(application, "Activate", {QVariantMap()}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(first.line(), "show");
    first.signal(SIGTERM);
    EXPECT_THAT(first.end().output, IsEmpty());
}

} // namespace
} // namespace quelby::app
