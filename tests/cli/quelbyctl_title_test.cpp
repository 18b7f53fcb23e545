#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::HasSubstr;

class QuelbyctlTitle : public testing::Test {
protected:
    [[nodiscard]] ProgramResult title(std::vector<std::string> more = {}) const {
        more.insert(more.begin(), {"title", "--replay", recording});
        return quelbyctl(more);
    }

    TemporaryFolder folder;
    std::string recording = folder.write("it.jsonl", laptopRecording(4));
};

TEST_F(QuelbyctlTitle, IsThatOfTheRecordingsEnd) {
    EXPECT_EQ(title().output, "-12W\n");
    EXPECT_EQ(title({"--display", "Battery %"}).output, "77%\n");
    EXPECT_EQ(title({"--display", "Battery %", "--format", "json"}).output,
              "{\"symbol\":\"battery.75percent\",\"title\":\" 77%\"}\n");
    EXPECT_THAT(title({"--format", "waybar"}).output, HasSubstr("\"percentage\":77"));
}

TEST_F(QuelbyctlTitle, FollowsTheUsersChoiceAndLeavesItAlone) {
    const auto preferences = folder.write("p.conf", "[General]\nmenuBarDisplay=Voltage (V)\n").string();
    EXPECT_EQ(title({"--preferences", preferences}).output, "12.00V\n");
    EXPECT_EQ(title({"--preferences", preferences, "--display", "Battery %"}).output, "77%\n");
    EXPECT_EQ(folder.read("p.conf"), "[General]\nmenuBarDisplay=Voltage (V)\n");
}

TEST_F(QuelbyctlTitle, FollowsWithALineOnlyWhenSomethingChanged) {
    EXPECT_EQ(title({"--follow", "--fast"}).output, "-12W\n");
    EXPECT_EQ(title({"--follow", "--fast", "--display", "Battery %"}).output, "80%\n79%\n78%\n77%\n");
}

TEST_F(QuelbyctlTitle, RefusesWrongUsage) {
    EXPECT_EQ(title({"--display", "Watts"}).exitStatus, 2);
    EXPECT_THAT(title({"--display", "Watts"}).errors, HasSubstr("\"Power (W)\", \"Battery %\""));
    EXPECT_EQ(title({"--format", "xml"}).exitStatus, 2);
}

} // namespace
} // namespace quelby
