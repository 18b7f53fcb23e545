#include "platform/replay/replayed_machine.h"

#include <gtest/gtest.h>

#include "platform/local_day.h"
#include "platform/replay/recording_line.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

class ReplayedMachineTest : public testing::Test {
protected:
    [[nodiscard]] ReplayedMachine replay(const std::vector<RecordedCycle>& cycles) const {
        std::string content;
        for (const auto& cycle : cycles) {
            content += recordingLine(cycle) + '\n';
        }
        return std::move(ReplayedMachine::open(folder.write("it.jsonl", content)).value());
    }

    TemporaryFolder folder;
};

TEST_F(ReplayedMachineTest, AnswersEverythingFromTheLineOfTheCycle) {
    auto machine = replay({{.time = 1'700'000'000,
                            .battery = UnreadableBattery{},
                            .processors = 8,
                            .cpuListing = "cpu",
                            .topListing = "top",
                            .storageDraw = 1},
                           {.time = 1'700'000'003, .processors = 2, .storageDraw = 0}});
    EXPECT_EQ(machine.now(), 1'700'000'000); // also before the first cycle
    EXPECT_EQ(machine.readBattery(), BatteryReading(UnreadableBattery{}));
    EXPECT_EQ(machine.now(), 1'700'000'000);
    EXPECT_EQ(machine.startOfDay(), startOfLocalDay(1'700'000'000));
    EXPECT_EQ(machine.logicalProcessors(), 8);
    EXPECT_EQ(machine.cpuListing(), "cpu");
    EXPECT_EQ(machine.topListing(), "top");
    EXPECT_EQ(machine.draw(), 1);
    EXPECT_EQ(machine.readBattery(), BatteryReading(NoBattery{}));
    EXPECT_EQ(machine.now(), 1'700'000'003);
    EXPECT_EQ(machine.cpuListing(), std::nullopt);
    EXPECT_EQ(machine.draw(), 0);
}

TEST_F(ReplayedMachineTest, TellsTheHelpersFilesOfTheLineAlsoBeforeTheFirstCycle) {
    auto machine = replay({{.time = 1, .status = "a", .config = "b"}, {.time = 2}});
    EXPECT_EQ(machine.helperConfig(), "b");
    static_cast<void>(machine.readBattery());
    EXPECT_EQ(machine.helperStatus(), "a");
    EXPECT_EQ(machine.helperConfig(), "b");
    static_cast<void>(machine.readBattery());
    EXPECT_EQ(machine.helperStatus(), std::nullopt);
    EXPECT_EQ(machine.helperConfig(), std::nullopt);
}

TEST_F(ReplayedMachineTest, InstallsAndRemovesNothing) {
    auto machine = replay({{.time = 1'700'000'000}});
    EXPECT_FALSE(machine.install());
    EXPECT_FALSE(machine.uninstall());
    EXPECT_FALSE(machine.uninstallEverything());
}

TEST_F(ReplayedMachineTest, StaysAtItsLastLine) {
    auto machine = replay({{.time = 1}, {.time = 2}});
    EXPECT_FALSE(machine.isAtLastLine());
    static_cast<void>(machine.readBattery());
    EXPECT_FALSE(machine.isAtLastLine());
    static_cast<void>(machine.readBattery());
    EXPECT_TRUE(machine.isAtLastLine());
    static_cast<void>(machine.readBattery());
    EXPECT_TRUE(machine.isAtLastLine());
    EXPECT_EQ(machine.now(), 2);
}

TEST_F(ReplayedMachineTest, OfOneLineIsAtItsEndWithTheFirstCycle) {
    auto machine = replay({{.time = 1}});
    EXPECT_FALSE(machine.isAtLastLine());
    static_cast<void>(machine.readBattery());
    EXPECT_TRUE(machine.isAtLastLine());
}

TEST_F(ReplayedMachineTest, StartsAgainWithItsClockRunningOn) {
    const auto file = folder.write("it.jsonl", recordingLine({.time = 100, .processors = 1}) + '\n' +
                                                   recordingLine({.time = 104, .processors = 2}) + '\n' +
                                                   recordingLine({.time = 110, .processors = 3}) + '\n');
    auto machine = ReplayedMachine::open(file, AfterLastLine::startAgain);
    ASSERT_TRUE(machine);
    std::vector<std::pair<double, std::int64_t>> cycles;
    for (int cycle = 0; cycle < 8; ++cycle) {
        static_cast<void>(machine->readBattery());
        cycles.emplace_back(machine->now(), machine->logicalProcessors());
        EXPECT_FALSE(machine->isAtLastLine());
    }
    const std::vector<std::pair<double, std::int64_t>> expected{{100, 1}, {104, 2}, {110, 3}, {116, 1},
                                                                {120, 2}, {126, 3}, {132, 1}, {136, 2}};
    EXPECT_EQ(cycles, expected);
}

TEST_F(ReplayedMachineTest, OfOneLineStartsAgainEveryThreeSeconds) {
    auto machine = ReplayedMachine::open(folder.write("it.jsonl", recordingLine({.time = 100})),
                                         AfterLastLine::startAgain);
    static_cast<void>(machine->readBattery());
    static_cast<void>(machine->readBattery());
    EXPECT_EQ(machine->now(), 103);
    static_cast<void>(machine->readBattery());
    EXPECT_EQ(machine->now(), 106);
}

TEST_F(ReplayedMachineTest, DrawsTheSameAtEveryReplayWhereNothingIsRecorded) {
    const auto draws = [&] {
        auto machine = replay({{.time = 1}});
        std::string text;
        for (int i = 0; i < 64; ++i) {
            text += machine.draw() == 0 ? '0' : '1';
        }
        return text;
    };
    const auto once = draws();
    EXPECT_EQ(draws(), once);
    EXPECT_NE(once.find('0'), std::string::npos);
    EXPECT_NE(once.find('1'), std::string::npos);
}

TEST_F(ReplayedMachineTest, RefusesARecordingBeforeAnythingIsPlayed) {
    const auto bad = folder.write("bad.jsonl", recordingLine({.time = 1}) + "\nnonsense\n");
    EXPECT_EQ(ReplayedMachine::open(bad).error().sentence,
              "cannot replay \"" + bad.string() + "\": line 2 is not a JSON object");
}

} // namespace
} // namespace quelby
