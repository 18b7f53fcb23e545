// A user without rights does to the shared folder what comes to mind, and the helper, which may be root, goes
// on.

#include <csignal>
#include <cstring>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/netlink.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/number_text.h"
#include "limiter/support/limiter_program.h"
#include "limiter/support/ordinary_user.h"
#include "support/running_program.h"

namespace quelby::limiter {
namespace {

namespace fs = std::filesystem;

const DaemonConfig limitOn{.chargeLimitEnabled = true, .chargeLimitPercent = 60};

struct Attack {
    const char* name = nullptr;
    // Done within the folder, by a user without rights; the secret is a file of root's beside it.
    bool (*carryOut)(const fs::path& folder, const fs::path& secret) = nullptr;
    // Whether the helper can still write its files afterwards.
    bool filesCanBeWritten = true;
};

bool makeLinks(const fs::path& folder, const fs::path& secret) {
    bool made = true;
    for (const char* const name : {"config.json", "status.json", "details.json"}) {
        ::unlink((folder / name).c_str());
        made = made && ::symlink(secret.c_str(), (folder / name).c_str()) == 0;
    }
    return made;
}

bool makePipes(const fs::path& folder, const fs::path&) {
    bool made = true;
    for (const char* const name : {"config.json", "status.json", "details.json"}) {
        ::unlink((folder / name).c_str());
        made = made && ::mkfifo((folder / name).c_str(), 0666) == 0;
    }
    return made;
}

bool makeDirectories(const fs::path& folder, const fs::path&) {
    bool made = true;
    for (const char* const name : {"config.json", "status.json", "details.json"}) {
        ::unlink((folder / name).c_str());
        made = made && ::mkdir((folder / name).c_str(), 0777) == 0 &&
               ::mkdir((folder / name / "within").c_str(), 0777) == 0;
    }
    return made;
}

bool removeAll(const fs::path& folder, const fs::path&) {
    for (const char* const name : {"config.json", "status.json", "details.json"}) {
        ::unlink((folder / name).c_str());
    }
    return true;
}

bool makeHugeFiles(const fs::path& folder, const fs::path&) {
    bool made = true;
    for (const char* const name : {"config.json", "status.json", "details.json"}) {
        ::unlink((folder / name).c_str());
        const FileDescriptor file(::open((folder / name).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666));
        made = made && ::ftruncate(file.number(), off_t{1} << 42) == 0;
    }
    return made;
}

bool makeUnreadableFiles(const fs::path& folder, const fs::path&) {
    ::unlink((folder / "config.json").c_str());
    return FileDescriptor(::open((folder / "config.json").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0))
        .isOpen();
}

bool makeManyFiles(const fs::path& folder, const fs::path&) {
    bool made = true;
    for (int count = 0; count < 1000; ++count) {
        const auto name = folder / (".pwr_limiter-" + std::to_string(count));
        made = made && FileDescriptor(::open(name.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666)).isOpen();
    }
    return made;
}

bool nameOtherPlaces(const fs::path& folder, const fs::path& secret) {
    ::unlink((folder / "config.json").c_str());
    std::ofstream(folder / "config.json")
        << R"({"chargeLimitEnabled":true,"chargeLimitPercent":60,"calibrationEnabled":false,)"
        << R"("calibrationIntervalDays":30,"lastCalibrationTimestamp":0,"folder":")" << secret.string()
        << R"(","battery":"../../../secret","sysfs":"/"})";
    return true;
}

void PrintTo(const Attack& attack, std::ostream* stream) {
    *stream << attack.name;
}

class HostileUser : public testing::TestWithParam<Attack>, protected LimiterProgram {
protected:
    HostileUser() {
        fs::permissions(outer.write("secret", encode(limitOn).value()), fs::perms(0600));
        secretBefore = outer.read("secret");
        setAttribute("BAT0/status", "Charging"); // so that one look is enough
    }

    void expectTheSecretUntouched() const {
        EXPECT_EQ(outer.read("secret"), secretBefore);
        EXPECT_EQ(fs::status(outer.path() / "secret").permissions(), fs::perms(0600));
    }

    std::string secretBefore;
};

TEST_P(HostileUser, CannotStopAHelperThatIsAtWork) {
    wish(limitOn);
    RunningProgram helper(words());
    waitUntilItRuns();
    ASSERT_EQ(attribute(bat0End), "60");
    ASSERT_TRUE(asOrdinaryUser([&] { return GetParam().carryOut(shared, outer.path() / "secret"); }));
    helper.signal(SIGTERM); // it reads and writes once more, or at least once more
    EXPECT_EQ(helper.end().exitStatus, 0);
    EXPECT_EQ(attribute(bat0End), "60");
    expectTheSecretUntouched();
}

TEST_P(HostileUser, CannotKeepAHelperFromStarting) {
    wish(limitOn);
    ASSERT_EQ(run({"--once"}).exitStatus, 0);
    ASSERT_TRUE(asOrdinaryUser([&] { return GetParam().carryOut(shared, outer.path() / "secret"); }));
    const auto started = run({"--once"});
    EXPECT_EQ(started.exitStatus, GetParam().filesCanBeWritten ? 0 : 1) << started.errors;
    if (GetParam().filesCanBeWritten) {
        EXPECT_TRUE(status().has_value());
        EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(shared / "status.json")));
        EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(shared / "details.json")));
    }
    EXPECT_THAT(attribute(bat0End), testing::AnyOf("60", "100")); // as wished, or no wish could be read
    expectTheSecretUntouched();
}

INSTANTIATE_TEST_SUITE_P(By, HostileUser,
                         testing::Values(Attack{"links", makeLinks}, Attack{"pipes", makePipes},
                                         Attack{"directories", makeDirectories, false},
                                         Attack{"removal", removeAll}, Attack{"hugeFiles", makeHugeFiles},
                                         Attack{"unreadableFiles", makeUnreadableFiles},
                                         Attack{"manyFiles", makeManyFiles},
                                         Attack{"namesOfOtherPlaces", nameOtherPlaces}),
                         [](const auto& attack) { return std::string(attack.param.name); });

class HostileUserTest : public HostileUser {};

// What the kernel has counted of the helper's waking up.
std::int64_t wakeups(pid_t process) {
    std::ifstream lines("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(lines, line);) {
        constexpr std::string_view key = "voluntary_ctxt_switches:";
        if (line.rfind(key, 0) == 0) {
            return wholeNumber(withoutBlanks(std::string_view(line).substr(key.size()))).value_or(0);
        }
    }
    return 0;
}

TEST_F(HostileUserTest, CannotKeepItBusyWithAFloodOfChanges) {
    wish(limitOn);
    const RunningProgram helper(words());
    waitUntilItRuns();
    const auto before = wakeups(helper.process());
    timespec begin{};
    timespec end{};
    ::clock_gettime(CLOCK_MONOTONIC, &begin);
    ASSERT_TRUE(asOrdinaryUser([&] {
        const auto text = encode(limitOn).value();
        for (int count = 0; count < 2000; ++count) {
            const auto made = shared / "new.json";
            const FileDescriptor file(::open(made.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
            if (::write(file.number(), text.data(), text.size()) < 0 ||
                ::rename(made.c_str(), (shared / "config.json").c_str()) != 0) {
                return false;
            }
        }
        return true;
    }));
    ::clock_gettime(CLOCK_MONOTONIC, &end);
    const auto seconds = end.tv_sec - begin.tv_sec + 1;
    // Each of its reactions sleeps a few times, on the disk for example, and oftener on a busy computer; without a
    // bounded rate there would be hundreds of reactions.
    EXPECT_LE(wakeups(helper.process()) - before, 40 * (5 + seconds / 5 + seconds / 3));
    EXPECT_FALSE(helper.hasEnded());
}

TEST_F(HostileUserTest, CannotForgeTheKernelsMessages) {
    wish(limitOn);
    const RunningProgram helper(words());
    waitUntilItRuns();
    const auto process = static_cast<std::uint32_t>(helper.process());
    EXPECT_FALSE(asOrdinaryUser([&] {
        const FileDescriptor socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_KOBJECT_UEVENT));
        bool sent = false;
        for (const std::uint32_t group : {0U, 1U}) {
            sockaddr_nl address{};
            address.nl_family = AF_NETLINK;
            address.nl_pid = group == 0 ? process : 0;
            address.nl_groups = group;
            const std::string message("change@/x\0SUBSYSTEM=power_supply\0", 33);
            sent = sent || ::sendto(socket.number(), message.data(), message.size(), 0,
                                    reinterpret_cast<const sockaddr*>(&address), sizeof address) > 0;
        }
        return sent;
    }));
}

TEST_F(HostileUserTest, CannotUseItsOwnFolder) {
    wish(limitOn);
    ASSERT_EQ(run({"--once"}).exitStatus, 0);
    if (::geteuid() != 0) { // the helper then is no other user than the one who attacks
        GTEST_SKIP() << "the folder is this user's own";
    }
    EXPECT_FALSE(asOrdinaryUser([&] {
        return FileDescriptor(::open((state / "state.json").c_str(), O_RDONLY | O_CLOEXEC)).isOpen();
    }));
    EXPECT_FALSE(asOrdinaryUser([&] { return ::unlink((state / "state.json").c_str()) == 0; }));
    EXPECT_FALSE(asOrdinaryUser(
        [&] { return FileDescriptor(::open((state / "lock").c_str(), O_RDWR | O_CLOEXEC)).isOpen(); }));
}

TEST_F(HostileUserTest, DecidesAtMostAboutTheLevelWithinItsBounds) {
    for (const auto& [asked, set] : std::vector<std::pair<std::int64_t, std::string>>{
             {-1, "20"}, {0, "20"}, {19, "20"}, {101, "100"}, {INT64_MAX, "100"}, {INT64_MIN, "20"}}) {
        wish({.chargeLimitEnabled = true,
              .chargeLimitPercent = asked,
              .calibrationIntervalDays = INT64_MIN,
              .lastCalibrationTimestamp = 1e300});
        ASSERT_EQ(run({"--once"}).exitStatus, 0);
        EXPECT_EQ(attribute(bat0End), set) << asked;
        EXPECT_EQ(config()->lastCalibrationTimestamp, 0); // put right
    }
}

TEST_F(HostileUserTest, CannotMakeItLoseItsWayByTakingTheFolderItselfAway) {
    hurryUp();
    wish(limitOn);
    RunningProgram helper(words(), hurried(30)); // its next regular round tells
    waitUntilItRuns();
    fs::remove_all(shared); // that only the owner of the folder above can
    fs::create_directory(shared);
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 70});
    waitForLevel("70");
    EXPECT_FALSE(helper.hasEnded());
}

} // namespace
} // namespace quelby::limiter
