// The built recorder on a computer that has next to nothing of what it is used to.

#include <csignal>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "history/history_file.h"
#include "history/support/tables.h"
#include "support/quelbyctl.h"
#include "support/running_program.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class FaultySurroundings : public testing::Test {
protected:
    [[nodiscard]] static std::vector<std::string> recorderWith(const std::vector<std::string>& more) {
        std::vector<std::string> all{QUELBY_BINARY_DIR "/quelby", "--headless"};
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }

    // Its first line, of a program that then ends as it is asked to and has nothing to complain of.
    [[nodiscard]] static std::string firstLine(const std::vector<std::string>& words,
                                               const Environment& environment) {
        RunningProgram program(words, environment);
        auto line = program.line();
        program.signal(SIGTERM);
        const auto end = program.end();
        EXPECT_EQ(end.exitStatus, 0);
        EXPECT_THAT(end.errors, IsEmpty());
        return line;
    }

    [[nodiscard]] std::int64_t rowsThere() const {
        return Database(historyFile(folder.path())).number("SELECT COUNT(*) FROM readings");
    }

    TemporaryFolder folder;
    std::string nowhere = folder.path() / "nowhere";
};

TEST_F(FaultySurroundings, WithoutProcAndSysfsAreRecorded) {
    const auto line = firstLine(recorderWith({"--proc-root", nowhere, "--sysfs-root", nowhere, "--data-dir",
                                              folder.path(), "--config-dir", nowhere}),
                                plainEnvironment());
    EXPECT_THAT(line, HasSubstr(" W  CPU "));
    EXPECT_EQ(rowsThere(), 1);
}

TEST_F(FaultySurroundings, WithoutAHomeAreShown) {
    auto environment = plainEnvironment();
    for (const auto* const home :
         {"/proc/nobody", "/sys"}) { // one that cannot be made, one to read from only
        for (const auto* const variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
            environment[variable] = home;
        }
        EXPECT_THAT(firstLine(recorderWith({}), environment), HasSubstr(" W  CPU ")) << home;
    }
}

TEST_F(FaultySurroundings, WithAHandfulOfDescriptorsAreRecorded) {
    const auto words =
        "ulimit -n 24; exec " QUELBY_BINARY_DIR "/quelby --headless --data-dir " + folder.path().string();
    EXPECT_THAT(firstLine({"/bin/sh", "-c", words}, plainEnvironment()), HasSubstr(" W  CPU "));
    EXPECT_EQ(rowsThere(), 1);
}

} // namespace
} // namespace quelby
