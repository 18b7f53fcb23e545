#include "platform/replay/recording_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/replay/recording_line.h"
#include "support/file_mode.h"
#include "support/file_size_limit.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

class RecordingWriterTest : public testing::Test {
protected:
    TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "it.jsonl";
    const RecordedCycle first{.time = 1};
    const RecordedCycle second{.time = 2};
};

TEST_F(RecordingWriterTest, WritesALineForEachCycle) {
    auto writer = RecordingWriter::open(file);
    ASSERT_TRUE(writer);
    ASSERT_TRUE(writer->append(first));
    ASSERT_TRUE(writer->append(second));
    EXPECT_EQ(folder.read("it.jsonl"), recordingLine(first) + '\n' + recordingLine(second) + '\n');
    EXPECT_THAT(folder.names(), ElementsAre("it.jsonl"));
}

TEST_F(RecordingWriterTest, MakesAnOrdinaryFile) {
    const Umask usual(022);
    auto writer = RecordingWriter::open(file);
    ASSERT_TRUE(writer->append(first));
    EXPECT_EQ(modeOf(file), 0644U);
}

TEST_F(RecordingWriterTest, LeavesAnOlderFileUntilItsFirstLineIsWritten) {
    folder.write("it.jsonl", "old");
    ::chmod(file.c_str(), 0600);
    {
        auto writer = RecordingWriter::open(file);
        ASSERT_TRUE(writer);
        EXPECT_EQ(folder.read("it.jsonl"), "old");
    }
    EXPECT_EQ(folder.read("it.jsonl"), "old");
    EXPECT_THAT(folder.names(), ElementsAre("it.jsonl"));
    auto writer = RecordingWriter::open(file);
    ASSERT_TRUE(writer->append(first));
    EXPECT_EQ(folder.read("it.jsonl"), recordingLine(first) + '\n');
    EXPECT_EQ(modeOf(file), 0600U);
}

TEST_F(RecordingWriterTest, ReplacesTheTargetOfASymbolicLink) {
    folder.write("target.jsonl", "old");
    std::filesystem::create_symlink("target.jsonl", file);
    auto writer = RecordingWriter::open(file);
    ASSERT_TRUE(writer->append(first));
    EXPECT_TRUE(std::filesystem::is_symlink(file));
    EXPECT_EQ(folder.read("target.jsonl"), recordingLine(first) + '\n');
}

// The write that crosses the limit is cut short, the next one fails.
TEST_F(RecordingWriterTest, KeepsWholeLinesWhenTheDiskIsFull) {
    const auto line = recordingLine(first) + '\n';
    auto writer = RecordingWriter::open(file);
    const FileSizeLimit room(line.size() * 2 + 10);
    EXPECT_TRUE(writer->append(first));
    EXPECT_TRUE(writer->append(first));
    const auto tooMuch = writer->append(first);
    ASSERT_FALSE(tooMuch);
    EXPECT_THAT(tooMuch.error().sentence, EndsWith("File too large"));
    EXPECT_EQ(folder.read("it.jsonl"), line + line);
}

TEST_F(RecordingWriterTest, SaysWhyADeviceTakesNothing) {
    auto writer = RecordingWriter::open("/dev/full");
    ASSERT_TRUE(writer);
    EXPECT_EQ(writer->append(first).error().sentence,
              "cannot record to \"/dev/full\": No space left on device");
}

TEST_F(RecordingWriterTest, SaysWhyAFileCannotBeMade) {
    EXPECT_EQ(RecordingWriter::open(folder.path()).error().sentence,
              "cannot record to \"" + folder.path().string() + "\": Is a directory");
    const auto nowhere = folder.path() / "missing" / "it.jsonl";
    EXPECT_EQ(RecordingWriter::open(nowhere).error().sentence,
              "cannot record to \"" + nowhere.string() + "\": No such file or directory");
    EXPECT_THAT(folder.names(), IsEmpty());
}

} // namespace
} // namespace quelby
