#include "platform/replay/recording_reader.h"

#include <thread>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/replay/recording_line.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

std::string lineAt(double time) {
    return recordingLine({.time = time});
}

class RecordingReaderTest : public testing::Test {
protected:
    [[nodiscard]] std::string refusal(std::string_view content) const {
        const auto reader = RecordingReader::open(folder.write("it.jsonl", content));
        return reader ? "accepted" : reader.error().sentence;
    }

    [[nodiscard]] std::string cannotReplay(const std::string& why) const {
        return "cannot replay \"" + (folder.path() / "it.jsonl").string() + "\": " + why;
    }

    TemporaryFolder folder;
};

TEST_F(RecordingReaderTest, PlaysEveryLineInOrderAndThenNothing) {
    auto reader = RecordingReader::open(folder.write("it.jsonl", lineAt(1) + '\n' + lineAt(2) + '\n'));
    ASSERT_TRUE(reader);
    EXPECT_EQ(reader->next()->time, 1);
    EXPECT_EQ(reader->next()->time, 2);
    EXPECT_EQ(reader->next(), std::nullopt);
    EXPECT_EQ(reader->next(), std::nullopt);
    reader->rewind();
    EXPECT_EQ(reader->next()->time, 1);
}

TEST_F(RecordingReaderTest, PlaysALastLineWithoutNewline) {
    auto reader = RecordingReader::open(folder.write("it.jsonl", lineAt(1) + '\n' + lineAt(2)));
    ASSERT_TRUE(reader);
    EXPECT_TRUE(reader->next());
    EXPECT_EQ(reader->next()->time, 2);
    EXPECT_EQ(reader->next(), std::nullopt);
}

TEST_F(RecordingReaderTest, PlaysLinesLongerThanItReadsAtOnce) {
    const auto listing = "%CPU\n" + std::string(300'000, ' ');
    const auto line = recordingLine({.time = 1, .cpuListing = listing});
    auto reader = RecordingReader::open(folder.write("it.jsonl", line + '\n' + lineAt(2) + '\n' + line));
    ASSERT_TRUE(reader);
    EXPECT_EQ(reader->next()->cpuListing, listing);
    EXPECT_EQ(reader->next()->time, 2);
    EXPECT_EQ(reader->next()->cpuListing, listing);
}

TEST_F(RecordingReaderTest, RefusesTheFirstBadLineByItsNumber) {
    EXPECT_EQ(refusal(lineAt(1) + '\n' + lineAt(2) + "\nnonsense\n{}"),
              cannotReplay("line 3 is not a JSON object"));
    EXPECT_EQ(refusal("{}\n"), cannotReplay("line 1 has no \"time\""));
    EXPECT_EQ(refusal(lineAt(1) + "\n\n" + lineAt(2)), cannotReplay("line 2 is not a JSON object"));
    EXPECT_EQ(refusal(lineAt(1) + '\n' + lineAt(2).substr(0, 20)),
              cannotReplay("line 2 is not a JSON object"));
}

TEST_F(RecordingReaderTest, RefusesAnEmptyFile) {
    EXPECT_EQ(refusal(""), cannotReplay("it is empty"));
}

TEST_F(RecordingReaderTest, RefusesALineThatNeverEnds) {
    EXPECT_EQ(refusal(std::string(20 << 20, 'x')), cannotReplay("line 1 is too long for a recording"));
}

TEST_F(RecordingReaderTest, RefusesWhatIsNoFile) {
    EXPECT_EQ(RecordingReader::open(folder.path() / "missing").error().sentence,
              "cannot replay \"" + (folder.path() / "missing").string() + "\": No such file or directory");
    EXPECT_EQ(RecordingReader::open(folder.path()).error().sentence,
              "cannot replay \"" + folder.path().string() + "\": it is a directory");
}

TEST_F(RecordingReaderTest, PlaysWhatComesThroughAPipe) {
    const auto pipe = folder.path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::thread writer([&] { std::ofstream(pipe) << lineAt(1) << '\n' << lineAt(2) << '\n'; });
    auto reader = RecordingReader::open(pipe);
    writer.join();
    ASSERT_TRUE(reader) << reader.error().sentence;
    EXPECT_EQ(reader->next()->time, 1);
    EXPECT_EQ(reader->next()->time, 2);
}

TEST_F(RecordingReaderTest, RefusesAnEndlessDevice) {
    EXPECT_EQ(RecordingReader::open("/dev/zero").error().sentence,
              "cannot replay \"/dev/zero\": it is not a recording");
}

TEST_F(RecordingReaderTest, EndsWhereTheFileWasSpoiledMeanwhile) {
    auto reader = RecordingReader::open(folder.write("it.jsonl", lineAt(1) + '\n' + lineAt(2) + '\n'));
    ASSERT_TRUE(reader);
    folder.write("it.jsonl", "nonsense");
    EXPECT_EQ(reader->next(), std::nullopt);
}

} // namespace
} // namespace quelby
