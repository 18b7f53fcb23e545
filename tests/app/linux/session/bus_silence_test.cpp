#include "app/linux/session/bus_silence.h"

#include <gtest/gtest.h>

#include "app/linux/session/session_bus.h"
#include "app/linux/support/private_bus.h"
#include "app/linux/support/silent_bus.h"

namespace quelby::app {
namespace {

using namespace std::chrono_literals;

// Of the bus's address; a bus that answers is not waited for.
bool isSilentFor(const std::string& address, std::chrono::milliseconds patience = 30s) {
    return isSilent(address, patience);
}

TEST(BusSilence, IsNotThatOfABusThatAnswers) {
    const PrivateBus bus;
    EXPECT_FALSE(isSilentFor(PrivateBus::address().toStdString()));
    EXPECT_FALSE(isSilentFor(PrivateBus::address().toStdString() + ",guid=0123456789abcdef"));
}

TEST(BusSilence, IsThatOfASocketThatTakesConnectionsAndSaysNothing) {
    const SilentBus bus;
    EXPECT_TRUE(isSilentFor(bus.address(), 1ms));
    EXPECT_TRUE(isSilentFor("unix:path=/nonexistent;" + bus.address(), 1ms));
    EXPECT_TRUE(isSilentFor("unix:guid=0,path=" + bus.path().parent_path().string() + "/%62us", 1ms));
}

TEST(BusSilence, IsThatOfASocketWhoseQueueIsFull) {
    const SilentBus bus(SilentBus::Accepts::nobody);
    bool silent = false;
    for (int i = 0; i < 10; ++i) { // each leaves a connection behind that nobody takes
        silent = isSilentFor(bus.address(), 1ms);
    }
    EXPECT_TRUE(silent);
}

TEST(BusSilence, IsNotThatOfNobody) {
    const std::string longPath(200, 'x');
    for (const auto& address : {std::string(), std::string("unix:path=/nonexistent"), std::string("unix:"),
                                std::string("unix:abstract=quelby-nobody"), std::string("autolaunch:"),
                                std::string("tcp:host=localhost,port=1"), std::string(";;unix:path;"),
                                std::string("unix:path=%"), "unix:path=/" + longPath}) {
        EXPECT_FALSE(isSilentFor(address)) << address;
    }
}

TEST(SessionBus, IsHiddenFromEverybodyWhileItIsSilentAndConnectedOnceItAnswers) {
    PrivateBus bus;
    bus.stop();
    const auto address = PrivateBus::address();
    SessionBus session;
    {
        const SilentBus silent(std::filesystem::path(address.section('=', 1).toStdString()));
        EXPECT_FALSE(session.connection());
        EXPECT_NE(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), address);
    }
    bus.start();
    EXPECT_TRUE(session.connection());
    EXPECT_EQ(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), address);
}

} // namespace
} // namespace quelby::app
