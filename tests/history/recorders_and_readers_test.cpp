#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "history/support/recorder_fixture.h"

namespace quelby {
namespace {

using testing::IsEmpty;

using Recorders = RecorderTest;

TEST_F(Recorders, AreOneForEachFolder) {
    const auto machine = recording(firstTime, 3, 5);
    RecorderProcess first(recorder(machine), environment()); // at the pace of a living machine, so it stays
    first.readLines(1);
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
    RecorderProcess first(recorder(machine), environment());
    first.readLines(1);
    EXPECT_EQ(first.kill().exitStatus, 128 + SIGKILL);
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
    RecorderProcess program(recorder(recording(firstTime, 3, lines), {"--fast"}), environment());
    for (int printed = 1; printed < 600; printed += 100) {
        program.readLines(printed);
        for (const auto* command : {"history", "status"}) {
            const auto known = static_cast<double>(program.lines());
            const auto object = answer(command);
            ASSERT_TRUE(object.is_object()) << command;
            EXPECT_GE(object["todayWh"].get<double>(), known * readingWh - 1e-9) << command;
            EXPECT_LE(object["todayWh"].get<double>(), lines * readingWh) << command;
        }
    }
    program.readLines(lines);
    EXPECT_EQ(program.lines(), lines);
}

} // namespace
} // namespace quelby
