#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "platform/replay/recording_reader.h"
#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

TEST(QuelbyctlRecord, RecordsThisComputerSoThatItCanBePlayed) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "it.jsonl";
    const auto recorded = quelbyctl({"record", file, "--count", "3", "--interval", "0.01"});
    EXPECT_EQ(recorded.exitStatus, 0);
    EXPECT_THAT(recorded.output, IsEmpty());
    EXPECT_THAT(recorded.errors, IsEmpty());
    const auto text = folder.read("it.jsonl");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 3);
    auto reader = RecordingReader::open(file);
    ASSERT_TRUE(reader) << reader.error().sentence;
    const auto first = reader->next();
    EXPECT_THAT(*first->cpuListing, HasSubstr("%CPU\n"));
    EXPECT_THAT(*first->topListing, HasSubstr("quelbyctl\n"));
    EXPECT_THAT(*first->topListing, Not(HasSubstr("--interval"))); // no arguments
    EXPECT_LT(first->time, reader->next()->time);
    const auto played = quelbyctl({"watch", "--json", "--fast", "--replay", file});
    EXPECT_EQ(std::count(played.output.begin(), played.output.end(), '\n'), 3);
}

TEST(QuelbyctlRecord, PlaysWhatWasRecordedOnAMac) {
    const std::string recording = QUELBY_SOURCE_DIR "/tests/data/recording-of-a-mac.jsonl";
    const auto played = quelbyctl({"status", "--json", "--replay", recording});
    EXPECT_EQ(played.exitStatus, 0);
    EXPECT_THAT(played.errors, IsEmpty());
    const auto fields = nlohmann::json::parse(played.output);
    EXPECT_EQ(fields["batteryPercent"], 74);
    EXPECT_EQ(fields["batteryHealth"], 85);
    EXPECT_EQ(fields["amperage"], -1350);
    EXPECT_NEAR(fields["realWatts"].get<double>(), 14.985, 1e-9);
    EXPECT_EQ(fields["batteryTemp"], 30.5);
    EXPECT_EQ(fields["cpuUsage"], 12.0);
    EXPECT_EQ(fields["topProcesses"][0]["name"], "Google Chrome Helper (Renderer)");
    EXPECT_EQ(fields["topProcesses"][1]["name"], "WindowServer");
}

TEST(QuelbyctlRecord, RecordsARecordingAsItIs) {
    const TemporaryFolder folder;
    const auto original = folder.write("it.jsonl", laptopRecording(4));
    const auto copy = folder.path() / "copy.jsonl";
    EXPECT_EQ(quelbyctl({"record", copy, "--replay", original, "--fast"}).exitStatus, 0);
    EXPECT_EQ(folder.read("copy.jsonl"), folder.read("it.jsonl"));
}

TEST(QuelbyctlRecord, SaysWhyAFileCannotBeWritten) {
    const TemporaryFolder folder;
    const std::pair<std::string, std::string> bad[] = {
        {"/dev/full", "No space left on device"},
        {folder.path(), "Is a directory"},
        {folder.path() / "missing" / "it.jsonl", "No such file or directory"}};
    for (const auto& [file, why] : bad) {
        const auto refused = quelbyctl({"record", file, "--count", "1"});
        EXPECT_EQ(refused.exitStatus, 1);
        EXPECT_EQ(refused.errors, "quelbyctl: cannot record to \"" + file + "\": " + why + '\n');
    }
}

} // namespace
} // namespace quelby
