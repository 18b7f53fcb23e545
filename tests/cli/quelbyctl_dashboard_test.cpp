#include <filesystem>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const fs::path data = fs::path(QUELBY_SOURCE_DIR) / "tests/data";

std::string content(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(QuelbyctlDashboard, SaysOfARecordedLaptopWhatIsWrittenDown) {
    const auto folder = data / "charging-dashboard";
    const auto result = quelbyctl({"dashboard", "--json", "--replay", (folder / "charging.jsonl").string(),
                                   "--config-dir", folder.string()});
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(result.output, content(folder / "dashboard.json") + '\n');
}

class QuelbyctlDashboardText : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string recording = folder.write("it.jsonl", laptopRecording(4));
};

TEST_F(QuelbyctlDashboardText, IsAPageWithoutEscapeSequencesInAFile) {
    const auto result = quelbyctl({"dashboard", "--replay", recording});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.output, Not(HasSubstr("\x1b")));
    expectGolden(result.output, "data/pages/dashboard.txt");
}

TEST_F(QuelbyctlDashboardText, IsColouredAndAsWideAsTheTerminal) {
    auto environment = plainEnvironment();
    environment["COLORTERM"] = "truecolor";
    TerminalProgram program(quelbyctlWords({"dashboard", "--replay", recording}), 150, 24, environment);
    const auto output = program.end().output;
    EXPECT_THAT(output, HasSubstr("\x1b[1;38;2;")); // the big figure
    const auto header = output.substr(0, output.find('\n'));
    EXPECT_THAT(header, HasSubstr("22:14:50"));
    EXPECT_GT(header.size(), 140U); // three columns of cards
}

TEST_F(QuelbyctlDashboardText, ShowsTheSettingsAsWell) {
    const auto result = quelbyctl({"dashboard", "--view", "settings", "--replay", recording});
    expectGolden(result.output, "data/pages/settings.txt");
}

TEST_F(QuelbyctlDashboardText, SpeaksOfDatesInTheUsersLanguage) {
    folder.write("config.json",
                 R"({"chargeLimitEnabled":true,"chargeLimitPercent":80,"calibrationEnabled":true,)"
                 R"("calibrationIntervalDays":14,"lastCalibrationTimestamp":1699740890})");
    const auto result = quelbyctl(
        {"dashboard", "--view", "settings", "--replay", recording, "--config-dir", folder.path().string()},
        {{"LC_ALL", "de_DE.UTF-8"}});
    EXPECT_THAT(result.output,
                AllOf(HasSubstr("vor 3 Tagen"), HasSubstr("in 1 Woche"), Not(HasSubstr("Wochen"))));
}

TEST_F(QuelbyctlDashboardText, RefusesAViewThatThereIsNot) {
    const auto result = quelbyctl({"dashboard", "--view", "map", "--replay", recording});
    EXPECT_EQ(result.exitStatus, 2);
    EXPECT_THAT(result.errors, HasSubstr("--view takes dashboard or settings, not \"map\""));
}

} // namespace
} // namespace quelby
