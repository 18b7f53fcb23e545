#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "platform/replay/recording_line.h"
#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class QuelbyctlHistory : public testing::Test {
protected:
    void record() const {
        const auto recorded = runProgram({QUELBY_BINARY_DIR "/quelby", "--headless", "--fast", "--replay",
                                          recording, "--data-dir", folder.path()});
        ASSERT_EQ(recorded.exitStatus, 0);
    }

    [[nodiscard]] ProgramResult history(std::vector<std::string> more = {}) const {
        more.insert(more.begin(), {"history", "--data-dir", folder.path(), "--replay", recording});
        return quelbyctl(more);
    }

    TemporaryFolder folder;
    std::string recording = folder.write("it.jsonl", laptopRecording(5));
    std::filesystem::path database = folder.path() / "Quelby" / "history.db";
};

TEST_F(QuelbyctlHistory, TellsTheCurveInThreeForms) {
    record();
    const auto object = nlohmann::json::parse(history({"--json"}).output);
    EXPECT_EQ(object["range"], "30m");
    EXPECT_EQ(object["points"].size(), 5U);
    EXPECT_EQ(object["avg"], 12.0);
    EXPECT_NEAR(object["todayWh"].get<double>(), 0.05, 1e-12);
    EXPECT_THAT(history({"--csv"}).output, HasSubstr("timestamp,watts\n1700000000,12\n"));
    EXPECT_THAT(history().output,
                HasSubstr("30 Min: average 12.0 W   min 12.0 W   max 12.0 W   today 0.1 Wh\n"));
}

TEST_F(QuelbyctlHistory, TellsEveryRange) {
    record();
    for (const auto* range : {"30m", "1h", "24h", "7d"}) {
        const auto object = nlohmann::json::parse(history({"--json", "--range", range}).output);
        EXPECT_EQ(object["range"], range);
        EXPECT_FALSE(object["points"].empty());
    }
}

TEST_F(QuelbyctlHistory, RefusesWrongUsage) {
    EXPECT_EQ(history({"--range", "2h"}).exitStatus, 2);
    EXPECT_THAT(history({"--range", "2h"}).errors, HasSubstr("--range takes 30m, 1h, 24h or 7d, not \"2h\""));
    EXPECT_EQ(history({"--json", "--csv"}).exitStatus, 2);
}

TEST_F(QuelbyctlHistory, SaysThatThereIsNoneYet) {
    const auto none = history();
    EXPECT_EQ(none.exitStatus, 1);
    EXPECT_THAT(none.output, IsEmpty());
    EXPECT_EQ(none.errors,
              "quelbyctl: there is no history yet: \"" + database.string() + "\" does not exist\n");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "Quelby")); // and makes none
}

TEST_F(QuelbyctlHistory, SaysWhyItCannotBeRead) {
    record();
    const auto whole = folder.read("Quelby/history.db");
    const std::pair<std::string, std::string> spoiled[] = {
        {std::string(8192, 'x'), "file is not a database"},
        {whole.substr(0, 5000), "database disk image is malformed"},
    };
    for (const auto& [content, why] : spoiled) {
        folder.write("Quelby/history.db", content);
        for (const auto* form : {"--json", "--csv"}) {
            const auto refused = history({form});
            EXPECT_EQ(refused.exitStatus, 1);
            EXPECT_THAT(refused.output, IsEmpty());
            EXPECT_THAT(refused.errors,
                        HasSubstr("cannot read the history \"" + database.string() + "\": " + why));
        }
        EXPECT_EQ(folder.read("Quelby/history.db"), content);
    }
    std::filesystem::remove(database);
    std::filesystem::create_directory(database);
    EXPECT_THAT(history().errors, HasSubstr("it is not a file"));
}

TEST_F(QuelbyctlHistory, OfAnEmptyFileIsEmpty) {
    folder.write("Quelby/history.db", "");
    const auto empty = history({"--csv"});
    EXPECT_EQ(empty.exitStatus, 0);
    EXPECT_EQ(empty.output, "timestamp,watts\n");
    EXPECT_EQ(folder.read("Quelby/history.db"), "");
}

TEST_F(QuelbyctlHistory, LeavesFileAndFolderAsTheyAre) {
    record();
    const auto before = folder.read("Quelby/history.db");
    const auto files = folder.names("Quelby");
    EXPECT_EQ(history().exitStatus, 0);
    EXPECT_EQ(quelbyctl({"status", "--data-dir", folder.path(), "--replay", recording}).exitStatus, 0);
    EXPECT_EQ(folder.read("Quelby/history.db"), before);
    EXPECT_EQ(folder.names("Quelby"), files);
}

TEST_F(QuelbyctlHistory, StandsInTheStatusAsWell) {
    record();
    const auto status = nlohmann::json::parse(
        quelbyctl({"status", "--json", "--data-dir", folder.path(), "--replay", recording}).output);
    EXPECT_EQ(status["historyData"].size(), 5U); // all recorded points are later than the start of the range
    EXPECT_EQ(status["historyAvg"], 12.0);
}

} // namespace
} // namespace quelby
