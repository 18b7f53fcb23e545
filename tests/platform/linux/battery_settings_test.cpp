#include "platform/battery_settings.h"

#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/posix/file_descriptor.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

// A pipe with a name, which a program that is not waited for can report to.
class ReportPipe {
public:
    explicit ReportPipe(const std::filesystem::path& path) {
        EXPECT_EQ(::mkfifo(path.c_str(), 0600), 0);
        reading_ = FileDescriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    }

    // All that was written until everybody has closed it; empty where nobody writes.
    [[nodiscard]] std::string report() const {
        constexpr int longMilliseconds = 20'000;
        pollfd ready{reading_.number(), POLLIN, 0};
        std::string text;
        while (::poll(&ready, 1, longMilliseconds) == 1) {
            char buffer[512];
            const auto count = ::read(reading_.number(), buffer, sizeof buffer);
            if (count <= 0) {
                break;
            }
            text.append(buffer, static_cast<std::size_t>(count));
        }
        return text;
    }

private:
    FileDescriptor reading_;
};

// In a desktop of XFCE whose only program is the one that shows the settings; it reports what it sees of
// itself.
class OpenBatterySettings : public testing::Test {
protected:
    OpenBatterySettings() {
        setVariable("PATH", folder.path().c_str());
        setVariable("XDG_CURRENT_DESKTOP", "XFCE");
    }

    ~OpenBatterySettings() override {
        for (const auto& [name, value] : former) {
            ::setenv(name.c_str(), value.c_str(), 1);
        }
    }

    void setVariable(const char* name, const char* value) {
        const char* const before = std::getenv(name);
        former.emplace_back(name, before == nullptr ? "" : before);
        ::setenv(name, value, 1);
    }

    void install(const std::string& commands) const {
        const auto program =
            folder.write("xfce4-power-manager-settings",
                         "#!/bin/sh\nPATH=/usr/bin:/bin\n{\n" + commands + "\n} > '" + pipePath() + "'\n");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    }

    [[nodiscard]] std::string pipePath() const { return (folder.path() / "report").string(); }

    [[nodiscard]] std::string reportOf(const std::string& commands) const {
        install(commands);
        openBatterySettings();
        return pipe.report();
    }

    TemporaryFolder folder;
    ReportPipe pipe{folder.path() / "report"};
    std::vector<std::pair<std::string, std::string>> former;
};

TEST_F(OpenBatterySettings, StartsTheProgramOfTheDesktop) {
    EXPECT_EQ(reportOf("echo \"$0\" $#"), folder.path().string() + "/xfce4-power-manager-settings 0\n");
}

TEST_F(OpenBatterySettings, DoesNotWaitForItAndLeavesNoChild) {
    const auto hold = folder.path() / "hold";
    EXPECT_EQ(::mkfifo(hold.c_str(), 0600), 0);
    install("read word < '" + hold.string() + "'; echo \"$word\"");
    openBatterySettings();
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
    std::ofstream(hold)
        << "go on\n"; // opens once the program reads, which must be after its start has returned
    EXPECT_EQ(pipe.report(), "go on\n");
}

TEST_F(OpenBatterySettings, GivesItNoFileOfThisProgram) {
    const int open = ::open("/dev/null", O_RDONLY); // and not closed on exec
    const auto report =
        reportOf("readlink /proc/$$/fd/0 /proc/$$/fd/2; ls /proc/$$/fd; test -e /proc/$$/fd/" +
                 std::to_string(open) + " || echo closed");
    ::close(open);
    EXPECT_THAT(report, StartsWith("/dev/null\n/dev/null\n"));
    EXPECT_THAT(report, HasSubstr("closed"));
}

TEST_F(OpenBatterySettings, GivesItASessionOfItsOwn) {
    const auto own = std::to_string(::getsid(0)) + "\n";
    EXPECT_NE(reportOf("cut -d ' ' -f 6 /proc/$$/stat"), own);
}

TEST_F(OpenBatterySettings, LetsItTakeSignals) {
    sigset_t held;
    sigemptyset(&held);
    sigaddset(&held, SIGTERM);
    sigset_t before;
    ::pthread_sigmask(SIG_BLOCK, &held, &before);
    std::signal(SIGPIPE, SIG_IGN);
    const auto report = reportOf("exec grep -E 'SigBlk|SigIgn' /proc/self/status");
    std::signal(SIGPIPE, SIG_DFL);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    EXPECT_EQ(report, "SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n");
}

TEST_F(OpenBatterySettings, DoesNothingOnADesktopThatIsNotKnownOrHasNoSuchProgram) {
    openBatterySettings();
    setVariable("XDG_CURRENT_DESKTOP", "unheard-of");
    install("echo started");
    openBatterySettings();
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    // Whatever started by mistake would have the pipe open for writing sooner or later; this is what does
    // now.
    setVariable("XDG_CURRENT_DESKTOP", "XFCE");
    EXPECT_EQ(reportOf("echo meant"), "meant\n");
}

} // namespace
} // namespace quelby
