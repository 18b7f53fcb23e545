// The built program within what its unit leaves it.

#include <array>
#include <csignal>
#include <cstring>

#include <gtest/gtest.h>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "limiter/support/limiter_program.h"
#include "platform/posix/file_descriptor.h"
#include "support/running_program.h"

namespace quelby::limiter {
namespace {

class Sandbox : public testing::Test, protected LimiterProgram {
protected:
    // A command line for sh: the file system read-only but for the test's folder, no network, users of its
    // own, no capability, and no way to any.
    [[nodiscard]] std::vector<std::string> confined(const std::vector<std::string>& command) const {
        const std::string script = "mount --make-rprivate / && mount --bind \"$1\" \"$1\" && "
                                   "mount -o remount,bind,ro / || exit 77\n"
                                   "shift\n"
                                   "touch /usr/quelby-test 2>/dev/null && exit 78\n"
                                   "exec unshare --user --map-root-user setpriv --no-new-privs "
                                   "--inh-caps=-all --bounding-set=-all -- \"$@\"";
        std::vector<std::string> words{"/usr/bin/env", "unshare", "--mount", "--net",     "sh",
                                       "-c",           script,    "sh",      outer.path()};
        words.insert(words.end(), command.begin(), command.end());
        return words;
    }

    void SetUp() override {
        // Namespaces of one's own take root, and containers may refuse them even then.
        if (::geteuid() != 0 || runProgram(confined({"true"})).exitStatus != 0) {
            GTEST_SKIP() << "no such place can be made here";
        }
    }
};

TEST_F(Sandbox, HasNoRightsThatTheProgramCouldUse) {
    const auto capabilities = runProgram(confined({"grep", "^Cap[EPB]", "/proc/self/status"}));
    EXPECT_EQ(capabilities.output, "CapPrm:\t0000000000000000\n"
                                   "CapEff:\t0000000000000000\n"
                                   "CapBnd:\t0000000000000000\n");
}

TEST_F(Sandbox, LeavesTheProgramAllThatItNeeds) {
    setAttribute("BAT0/status", "Charging"); // one look is enough
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 60, .lastCalibrationTimestamp = 1e12});
    const auto once = runProgram(confined(words({"--once"})));
    EXPECT_EQ(once.exitStatus, 0) << once.errors;
    EXPECT_EQ(attribute(bat0End), "60");
    ASSERT_TRUE(status());
    EXPECT_TRUE(status()->daemonRunning);
    EXPECT_EQ(config()->lastCalibrationTimestamp, 0); // put right
    EXPECT_EQ(runProgram(confined(words({"--restore"}))).exitStatus, 0);
    EXPECT_EQ(attribute(bat0End), "100");
}

class Readiness : public testing::Test, protected LimiterProgram {
protected:
    Readiness() : manager(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        name.copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(::bind(manager.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    }

    [[nodiscard]] std::string message() const {
        pollfd waiting{manager.number(), POLLIN, 0};
        std::array<char, 100> text{};
        const auto size = ::poll(&waiting, 1, 30'000) > 0
                              ? ::recv(manager.number(), text.data(), text.size(), 0)
                              : ssize_t{0};
        return {text.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0))};
    }

    std::string name = outer.path() / "notify";
    FileDescriptor manager;
};

TEST_F(Readiness, IsToldToTheServiceManagerOnceTheFirstRoundIsDone) {
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 60});
    const RunningProgram helper(words(), {{"NOTIFY_SOCKET", name}});
    EXPECT_EQ(message(), "READY=1");
    EXPECT_EQ(attribute(bat0End), "60");
    EXPECT_TRUE(status() && status()->daemonRunning);
}

TEST_F(Readiness, IsToldToNobodyWhereNobodyWaits) {
    RunningProgram helper(words(), {{"NOTIFY_SOCKET", (outer.path() / "nobody").string()}});
    waitUntilItRuns();
    helper.signal(SIGTERM);
    EXPECT_EQ(helper.end().exitStatus, 0);
}

} // namespace
} // namespace quelby::limiter
