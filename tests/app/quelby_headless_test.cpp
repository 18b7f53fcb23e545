#include <algorithm>
#include <csignal>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "history/history_file.h"
#include "history/support/tables.h"
#include "support/laptop_recording.h"
#include "support/program.h"
#include "support/quelbyctl.h"
#include "support/running_program.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::AnyOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class QuelbyHeadless : public testing::Test {
protected:
    [[nodiscard]] static std::vector<std::string> words(std::vector<std::string> more) {
        more.insert(more.begin(), {QUELBY_BINARY_DIR "/quelby", "--headless"});
        return more;
    }

    [[nodiscard]] static ProgramResult quelby(const std::vector<std::string>& more) {
        return runProgram(words(more), plainEnvironment());
    }

    [[nodiscard]] std::int64_t recordedRows() const {
        return Database(historyFile(folder.path())).number("SELECT COUNT(*) FROM readings");
    }

    TemporaryFolder folder;
    std::string recording = folder.write("it.jsonl", laptopRecording(5)).string();
};

TEST_F(QuelbyHeadless, RecordsEveryLineOfARecordingAndPrintsIt) {
    const auto result = quelby({"--replay", recording, "--fast", "--data-dir", folder.path()});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_THAT(result.output, StartsWith("22:13:20  80 % discharging"));
    EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), 5);
    EXPECT_EQ(recordedRows(), 5);
    const auto history = quelbyctl({"history", "--csv", "--data-dir", folder.path(), "--replay", recording});
    EXPECT_EQ(history.output, "timestamp,watts\n1700000000,12\n1700000030,12\n1700000060,12\n1700000090,12\n"
                              "1700000120,12\n");
}

TEST_F(QuelbyHeadless, RecordsARecordingToATemporaryFolderUnlessOneIsNamed) {
    auto environment = plainEnvironment();
    environment["XDG_DATA_HOME"] = folder.path() / "data";
    environment["TMPDIR"] = folder.path();
    const auto result = runProgram(words({"--replay", recording, "--fast"}), environment);
    EXPECT_EQ(result.exitStatus, 0);
    const auto entries = std::distance(std::filesystem::directory_iterator(folder.path()), {});
    EXPECT_EQ(entries, 1); // the recording itself
}

TEST_F(QuelbyHeadless, EndsCleanlyWhenASignalAsksForIt) {
    for (const int number : {SIGINT, SIGTERM}) {
        TerminalProgram program(words({"--replay", recording, "--data-dir", folder.path()}), 80, 24,
                                plainEnvironment());
        program.showsUntil("discharging");
        program.signal(number);
        EXPECT_EQ(program.end().exitStatus, 0);
        EXPECT_FALSE(std::filesystem::exists(folder.path() / "Quelby" / "history.db-wal")); // closed in order
    }
    EXPECT_EQ(recordedRows(), 1);
}

// What draws would be most of its memory.
TEST_F(QuelbyHeadless, HasNothingInMemoryThatDraws) {
    RunningProgram program(words({"--replay", recording, "--data-dir", folder.path()}), plainEnvironment());
    EXPECT_THAT(program.line(), HasSubstr("discharging"));
    std::ifstream maps("/proc/" + std::to_string(program.process()) + "/maps");
    const std::string loaded(std::istreambuf_iterator<char>(maps), {});
    EXPECT_THAT(loaded, HasSubstr("libQt6Core"));
    EXPECT_THAT(loaded, Not(AnyOf(HasSubstr("libQt6Gui"), HasSubstr("libQt6DBus"), HasSubstr("libxcb"))));
    program.signal(SIGTERM);
    EXPECT_EQ(program.end().exitStatus, 0);
}

TEST_F(QuelbyHeadless, RecordsThisComputerInTheUsersDataFolder) {
    auto environment = plainEnvironment();
    environment["XDG_DATA_HOME"] = folder.path();
    TerminalProgram program(words({}), 80, 24, environment);
    program.showsUntil(" W  CPU ");
    program.signal(SIGTERM);
    EXPECT_EQ(program.end().exitStatus, 0);
    EXPECT_EQ(recordedRows(), 1);
}

TEST_F(QuelbyHeadless, RecordsOnWhenNobodyCanReadItsLines) {
    const auto command = std::string(QUELBY_BINARY_DIR "/quelby --headless --fast --replay ") + recording +
                         " --data-dir " + folder.path().string() + " > /dev/full";
    EXPECT_EQ(runProgram({"/bin/sh", "-c", command}).exitStatus, 0);
    EXPECT_EQ(recordedRows(), 5);
}

TEST_F(QuelbyHeadless, WorksWhereNothingCanBeRecorded) {
    const auto result = quelby({"--replay", recording, "--fast", "--data-dir", recording});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), 5);
}

TEST_F(QuelbyHeadless, RefusesARecordingThatCannotBePlayed) {
    const auto refused = quelby({"--replay", folder.path() / "missing"});
    EXPECT_EQ(refused.exitStatus, 1);
    EXPECT_THAT(refused.output, IsEmpty());
    EXPECT_THAT(refused.errors, StartsWith("quelby: cannot replay "));
}

TEST(Quelby, RefusesWrongUsage) {
    for (const auto& more : std::vector<std::vector<std::string>>{{"--bogus"}, {"--headless", "--fast"}}) {
        std::vector<std::string> words{QUELBY_BINARY_DIR "/quelby"};
        words.insert(words.end(), more.begin(), more.end());
        const auto refused = runProgram(words);
        EXPECT_EQ(refused.exitStatus, 2);
        EXPECT_THAT(refused.errors, StartsWith("quelby: "));
    }
    EXPECT_THAT(runProgram({QUELBY_BINARY_DIR "/quelby", "--help"}).output, HasSubstr("--headless"));
    EXPECT_THAT(runProgram({QUELBY_BINARY_DIR "/quelby", "--version"}).output, StartsWith("quelby "));
}

} // namespace
} // namespace quelby
