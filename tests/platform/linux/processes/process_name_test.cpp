#include "platform/linux/processes/process_names.h"

#include <gtest/gtest.h>

#include "fake_proc.h"

namespace quelby {
namespace {

using namespace std::string_literals;

class ProcessNameTest : public testing::Test {
protected:
    void SetUp() override {
        proc_.set({7});
        std::vector<pid_t> pids;
        ASSERT_TRUE(directory_.listPids(pids));
    }

    std::string nameFor(std::string_view escapedComm) { return processName(7, escapedComm, directory_); }

    FakeProc proc_;
    ProcDirectory directory_{proc_.root()};
};

TEST_F(ProcessNameTest, IsCommWhereThatIsWhole) {
    proc_.setExecutable(7, "/usr/bin/editor-of-texts");
    EXPECT_EQ(nameFor("editor"), "editor");
    EXPECT_EQ(nameFor("kworker/u16:3-events_unbound"), "kworker/u16:3-events_unbound");
}

TEST_F(ProcessNameTest, IsTheExecutablesBeforeTheCommandLines) {
    proc_.setExecutable(7, "/usr/bin/network-manager-applet");
    proc_.write(7, "cmdline", "network-manager-disguised\0"s);
    EXPECT_EQ(nameFor("network-manager"), "network-manager-applet");
}

TEST_F(ProcessNameTest, IsTheCommandLinesWhereTheExecutableIsAnother) {
    proc_.setExecutable(7, "/usr/bin/python3.11");
    proc_.write(7, "cmdline", "/usr/bin/python3\0/usr/bin/network-manager-applet\0"s);
    EXPECT_EQ(nameFor("network-manager"), "network-manager-applet");
}

TEST_F(ProcessNameTest, IsTheCommandLinesWhereTheExecutableIsSecret) {
    proc_.write(7, "cmdline", "network-manager-applet --secret=/a/b");
    EXPECT_EQ(nameFor("network-manager"), "network-manager-applet");
}

TEST_F(ProcessNameTest, IsCommWhereNothingCompletesIt) {
    EXPECT_EQ(nameFor("Isolated Web Co"), "Isolated Web Co");
    proc_.setExecutable(7, "/usr/lib/firefox");
    proc_.write(7, "cmdline", "/usr/lib/firefox\0-contentproc\0"s);
    EXPECT_EQ(nameFor("Isolated Web Co"), "Isolated Web Co");
}

TEST_F(ProcessNameTest, CountsTheBytesOfCommWithoutTheKernelsEscapes) {
    proc_.setExecutable(7, "/usr/bin/a\\b-and-a-long-name");
    EXPECT_EQ(nameFor(R"(a\\b-and-a-long)"), "a\\b-and-a-long");
    EXPECT_EQ(nameFor(R"(a\\b-and-a-long-)"), "a\\b-and-a-long-name");
}

TEST_F(ProcessNameTest, IsPrintable) {
    EXPECT_EQ(nameFor(R"(a\nb)"), "a?b");
    EXPECT_EQ(nameFor(""), "?");
    proc_.setExecutable(7, "/usr/bin/network-manager\x1B[2J");
    EXPECT_EQ(nameFor("network-manager"), "network-manager?[2J");
}

} // namespace
} // namespace quelby
