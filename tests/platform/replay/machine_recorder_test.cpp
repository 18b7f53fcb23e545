#include "platform/replay/machine_recorder.h"

#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "monitor/power_monitor.h"
#include "platform/replay/recording_line.h"
#include "platform/replay/replayed_machine.h"
#include "support/fake_platform.h"
#include "support/playing.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

TEST(MachineRecorder, NotesWhatACycleWasTold) {
    fake::Computer computer;
    computer.battery.reading = PropertyTable{{"ExternalConnected", true}};
    computer.processes.processors = 6;
    computer.processes.top = std::nullopt;
    computer.storageDraw.next = 1;
    MachineRecorder recorder(computer.platform());
    const auto monitor = PowerMonitor::create(recorder.platform());
    monitor->startMonitoring();
    EXPECT_EQ(recorder.takeCycle(), (RecordedCycle{.time = computer.clock.time,
                                                   .battery = computer.battery.reading,
                                                   .processors = 6,
                                                   .cpuListing = computer.processes.cpu,
                                                   .topListing = std::nullopt,
                                                   .storageDraw = 1}));
}

TEST(MachineRecorder, NotesTheHelpersSettingsWithEveryCycle) {
    fake::Computer computer;
    computer.helper.configText = "{}";
    MachineRecorder recorder(computer.platform());
    const auto monitor = PowerMonitor::create(recorder.platform());
    monitor->startMonitoring();
    EXPECT_EQ(recorder.takeCycle().config, "{}");
    computer.runLoop.fireTimers();
    EXPECT_EQ(recorder.takeCycle().config, "{}") << "asked for at the start only";
    computer.helper.configText = R"({"another": 1})";
    computer.runLoop.fireTimers();
    EXPECT_EQ(recorder.takeCycle().config, R"({"another": 1})");
}

struct ApplicationsOfADesktop final : ProcessLister {
    std::optional<std::string> cpuListing() override { return "%CPU\n5.0\n"; }

    std::optional<std::string> topListing() override { return "%CPU COMM\n5.0 browser-bin\n"; }

    std::optional<std::string> applicationListing() override { return "%CPU APPLICATION\n5.00 Browser\n"; }

    std::int64_t logicalProcessors() override { return 1; }
};

struct ClockSinceBoot final : Clock {
    Date now() override { return 1'700'000'000; }

    Date startOfDay() override { return now(); }

    std::optional<TimeSinceBoot> sinceBoot() override { return TimeSinceBoot{.awake = 100.5, .asleep = 7}; }
};

TEST(MachineRecorder, NotesTheApplicationsAndTheClockSinceBootOfEachCycleAndPlaysThem) {
    fake::Computer computer;
    ApplicationsOfADesktop processes;
    ClockSinceBoot clock;
    auto platform = computer.platform();
    platform.processes = processes;
    platform.clock = clock;
    MachineRecorder recorder(platform);
    const auto monitor = PowerMonitor::create(recorder.platform());
    monitor->startMonitoring();
    const TemporaryFolder folder;
    const auto file = folder.write("it.jsonl", recordingLine(recorder.takeCycle()));
    auto machine = ReplayedMachine::open(file);
    ASSERT_TRUE(machine);
    static_cast<void>(machine->readBattery());
    EXPECT_EQ(machine->applicationListing(), "%CPU APPLICATION\n5.00 Browser\n");
    EXPECT_EQ(machine->sinceBoot(), (TimeSinceBoot{.awake = 100.5, .asleep = 7}));
}

TEST(MachineRecorder, LeavesTheHelperAndItsInstallerToTheRealComputer) {
    fake::Computer computer;
    computer.helper.detailsText = "details";
    computer.installer.manager = PackageManager::apt;
    MachineRecorder recorder(computer.platform());
    const auto platform = recorder.platform();
    EXPECT_EQ(platform.helperFolder->details(), "details");
    EXPECT_FALSE(platform.helperFolder->detailsChanged());
    EXPECT_TRUE(platform.helperFolder->replaceConfig("{}"));
    EXPECT_EQ(computer.helper.configText, "{}");
    EXPECT_EQ(platform.helperInstaller->packageManager(), PackageManager::apt);
    EXPECT_TRUE(platform.helperInstaller->install());
    EXPECT_TRUE(platform.helperInstaller->uninstall());
    EXPECT_TRUE(platform.helperInstaller->uninstallEverything());
    EXPECT_THAT(computer.installer.wishes,
                testing::ElementsAre("install", "uninstall", "uninstall everything"));
}

TEST(MachineRecorder, NotesNoDrawWhereNothingWasDrawn) {
    fake::Computer computer;
    computer.battery.reading = PropertyTable{{"InstantAmperage", -1000}, {"Voltage", 12000}};
    MachineRecorder recorder(computer.platform());
    const auto monitor = PowerMonitor::create(recorder.platform());
    monitor->startMonitoring();
    EXPECT_EQ(recorder.takeCycle().storageDraw, std::nullopt);
}

struct Collect {
    std::vector<std::string>& values;

    template <typename T>
    void operator()(FieldName field, const Published<T>& published) const {
        if constexpr (std::is_same_v<T, double> || std::is_same_v<T, Int> || std::is_same_v<T, bool>) {
            values.push_back(std::string(field.name) + std::to_string(published.get()));
        } else if constexpr (std::is_same_v<T, std::string>) {
            values.push_back(std::string(field.name) + published.get());
        } else if constexpr (std::is_same_v<T, std::vector<ProcessInfo_Energy>>) {
            for (const auto& process : published.get()) {
                values.push_back(process.name + std::to_string(process.estimatedWatts));
            }
        }
    }
};

std::vector<std::string> valuesOf(const PowerMonitor& monitor) {
    std::vector<std::string> values;
    forEachField(monitor, Collect{values});
    return values;
}

// A computer that changes from cycle to cycle.
void change(fake::Computer& computer, std::mt19937& random) {
    const auto upTo = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    computer.clock.time += 3 + upTo(40);
    computer.storageDraw.next = upTo(1);
    computer.processes.cpu = "%CPU\n" + std::to_string(upTo(300)) + ".5\n";
    computer.processes.top =
        upTo(9) == 0 ? std::nullopt : std::optional("%CPU COMM\n" + std::to_string(upTo(90)) + ".25 a b\n");
    computer.battery.reading =
        PropertyTable{{"ExternalConnected", upTo(1) == 1},     {"InstantAmperage", -upTo(3000)},
                      {"Voltage", 11000 + upTo(2000)},         {"AppleRawMaxCapacity", 5000},
                      {"AppleRawCurrentCapacity", upTo(5000)}, {"TimeRemaining", upTo(300)}};
    if (upTo(9) == 0) {
        computer.battery.reading = UnreadableBattery{};
    }
}

TEST(MachineRecorder, MakesARecordingThatGivesTheSameFields) {
    fake::Computer computer;
    MachineRecorder recorder(computer.platform());
    const auto live = PowerMonitor::create(recorder.platform());
    std::vector<std::vector<std::string>> expected;
    std::string recording;
    live->onUpdate = [&] {
        expected.push_back(valuesOf(*live));
        recording += recordingLine(recorder.takeCycle()) + '\n';
    };
    std::mt19937 random(7);
    change(computer, random);
    live->startMonitoring();
    for (int cycle = 1; cycle < 300; ++cycle) {
        change(computer, random);
        computer.runLoop.fireTimers();
    }

    const TemporaryFolder folder;
    auto machine = ReplayedMachine::open(folder.write("it.jsonl", recording));
    ASSERT_TRUE(machine);
    fake::Computer rest;
    const auto replayed = PowerMonitor::create(playing(*machine, rest));
    replayed->startMonitoring();
    for (const auto& values : expected) {
        ASSERT_EQ(valuesOf(*replayed), values);
        rest.runLoop.fireTimers();
    }
    EXPECT_TRUE(machine->isAtLastLine());
}

} // namespace
} // namespace quelby
