// The built program under languages that write numbers and letters otherwise, and with processes that were
// given their names by somebody who means ill.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/utf8.h"
#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

const std::string recordingProgram = QUELBY_BINARY_DIR "/quelby";

class QuelbyctlSurroundings : public testing::Test {
protected:
    [[nodiscard]] std::vector<std::vector<std::string>> everyCommand() const {
        const auto kept = (folder.path() / "data").string();
        std::vector<std::vector<std::string>> all{{"status"},
                                                  {"status", "--json"},
                                                  {"dashboard"},
                                                  {"dashboard", "--json"},
                                                  {"watch", "--interval", "0.01"},
                                                  {"watch", "--json", "--interval", "0.01"},
                                                  {"title", "--format", "waybar"},
                                                  {"title", "--template", "{watts} {percent}"},
                                                  {"metrics"},
                                                  {"history", "--csv"},
                                                  {"energy"},
                                                  {"energy", "--json"},
                                                  {"energy", "--csv"},
                                                  {"limit"}};
        for (auto& words : all) {
            words.insert(words.end(), {"--data-dir", kept, "--config-dir", kept, "--replay", recording});
        }
        return all;
    }

    // A history of it, for the commands that read one.
    void record(const std::string& content) {
        recording = folder.write("it.jsonl", content);
        const auto recorder = runProgram({recordingProgram, "--headless", "--fast", "--replay", recording,
                                          "--data-dir", folder.path() / "data"},
                                         plainEnvironment());
        EXPECT_EQ(recorder.exitStatus, 0);
    }

    TemporaryFolder folder;
    std::string recording;
};

TEST_F(QuelbyctlSurroundings, OfEveryLanguageLeaveItsNumbersAndLettersAlone) {
    record(laptopRecording(3));
    for (const auto& words : everyCommand()) {
        const auto expected = quelbyctl(words);
        EXPECT_EQ(expected.exitStatus, 0) << words[0] << expected.errors;
        for (const auto* const language : {"de_DE.UTF-8", "tr_TR.UTF-8", "ar_EG.UTF-8", "C"}) {
            const auto result = quelbyctl(words, {{"LC_ALL", language}, {"LANGUAGE", language}});
            EXPECT_EQ(result.output, expected.output) << words[0] << " in " << language;
            EXPECT_THAT(result.errors, IsEmpty()) << words[0] << " in " << language;
        }
    }
}

// By hand, because a listing is made of lines: in place of their ends are what a terminal takes for one.
TEST_F(QuelbyctlSurroundings, WithHostileNamesStayPrintable) {
    const std::string names[] = {"\x1B[2J\x1B]0;mine\x07 clear", "\u202Egnp.exe",
                                 "\u2066a\u2069\u2028b\u0085", "\U0001F50B\U0001F468\u200D\U0001F469",
                                 "a\rb\tc\vd\x7F"};
    auto cycle = laptopCycle(0);
    cycle.topListing = "%CPU COMM\n";
    for (const auto& name : names) {
        *cycle.topListing += " 9.0 " + name + '\n';
    }
    auto later = cycle;
    later.time += 60;
    record(recordingLine(cycle) + '\n' + recordingLine(later) + '\n');
    for (const auto& words : everyCommand()) {
        auto output = quelbyctl(words).output;
        ASSERT_FALSE(output.empty()) << words[0];
        std::erase(output, '\n');
        EXPECT_TRUE(isUtf8(output)) << words[0];
        EXPECT_EQ(printable(output), output) << words[0] << ' ' << words[1];
    }
    EXPECT_THAT(quelbyctl(everyCommand()[2]).output, HasSubstr("\U0001F50B"));
}

} // namespace
} // namespace quelby
