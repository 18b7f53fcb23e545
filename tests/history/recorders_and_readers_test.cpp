#include <csignal>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "history/support/recorder_fixture.h"

namespace quelby {
namespace {

using testing::IsEmpty;

using Recorders = RecorderTest;

TEST_F(Recorders, AreOneForEachFolder) {
    const auto machine = recording(firstTime, 3, 5);
    RunningProgram first(recorder(machine), environment()); // at the pace of a living machine, so it stays
    readLines(first, 1);
    const auto second = runProgram(recorder(machine, {"--fast"}));
    EXPECT_EQ(second.exitStatus, 1);
    EXPECT_THAT(second.output, IsEmpty());
    EXPECT_EQ(second.errors,
              "quelby: another Quelby records to \"" + file.parent_path().string() + "\" already\n");
    const TemporaryFolder elsewhere;
    auto words = recorder(machine, {"--fast"});
    std::replace(words.begin(), words.end(), folder.path().string(), elsewhere.path().string());
    EXPECT_EQ(runProgram(words).exitStatus, 0);
}

TEST_F(Recorders, TakeOverFromOneThatWasKilled) {
    const auto machine = recording(firstTime, 3, 5);
    RunningProgram first(recorder(machine), environment());
    readLines(first, 1);
    first.signal(SIGKILL);
    EXPECT_EQ(first.end().exitStatus, 128 + SIGKILL);
    const auto second = runProgram(recorder(machine, {"--fast"}));
    EXPECT_EQ(second.exitStatus, 0);
    EXPECT_THAT(second.errors, IsEmpty());
}

class HistoryReaders : public RecorderTest {
protected:
    // What quelbyctl answers beside the recorder, at the time of its first reading.
    [[nodiscard]] nlohmann::json answer(const std::string& command) const {
        const auto now = folder.write("now.jsonl", recordingLine(laptopCycle(0)));
        const auto result = quelbyctl({command, "--json", "--data-dir", folder.path(), "--replay", now});
        EXPECT_EQ(result.exitStatus, 0);
        EXPECT_THAT(result.errors, IsEmpty());
        return nlohmann::json::parse(result.output, nullptr, false);
    }
};

TEST_F(HistoryReaders, SeeEveryReadingThatTheRecorderHasPrinted) {
    constexpr int lines = 2000;
    constexpr double readingWh = 12 * 3.0 / 3600;
    RunningProgram program(recorder(recording(firstTime, 3, lines), {"--fast"}), environment());
    int printed = 0;
    for (const int more : {1, 100, 100, 100, 100, 100}) {
        readLines(program, more);
        printed += more;
        for (const auto* command : {"history", "status"}) {
            const auto object = answer(command);
            ASSERT_TRUE(object.is_object()) << command;
            EXPECT_GE(object["todayWh"].get<double>(), printed * readingWh - 1e-9) << command;
            EXPECT_LE(object["todayWh"].get<double>(), lines * readingWh) << command;
        }
    }
    readLines(program, lines - printed);
    EXPECT_EQ(program.end().output, "");
}

} // namespace
} // namespace quelby
