#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST(Quelbyctl, AnswersHelpAndVersionOnStandardOutput) {
    const auto help = quelbyctl({"--help"});
    EXPECT_EQ(help.exitStatus, 0);
    EXPECT_THAT(help.output, HasSubstr("--replay"));
    EXPECT_THAT(help.errors, IsEmpty());
    EXPECT_THAT(quelbyctl({"record", "--version"}).output, StartsWith("quelbyctl "));
}

TEST(Quelbyctl, RefusesWrongUsageOnStandardErrorWithStatusTwo) {
    for (const auto& words : std::vector<std::vector<std::string>>{
             {}, {"bogus"}, {"watch", "--count", "-1"}, {"watch", "--interval", "0"}, {"status", "--fast"}}) {
        const auto refused = quelbyctl(words);
        EXPECT_EQ(refused.exitStatus, 2);
        EXPECT_THAT(refused.output, IsEmpty());
        EXPECT_THAT(refused.errors, StartsWith("quelbyctl: "));
    }
}

TEST(Quelbyctl, SaysWhyARecordingCannotBePlayedWithStatusOne) {
    const TemporaryFolder folder;
    const std::pair<std::string, std::string> bad[] = {
        {"", "it is empty"},
        {laptopRecording(3).substr(0, laptopRecording(3).size() - 20), "line 3 is not a JSON object"},
        {std::string("\x7F"
                     "ELF\x02\x01\x01\0\0\0",
                     10),
         "line 1 is not a JSON object"},
        {"{\"time\": 1}\n", "line 1 has no \"battery\""}};
    for (const auto& [content, why] : bad) {
        const auto file = folder.write("it.jsonl", content).string();
        for (const auto* command : {"status", "watch"}) {
            const auto refused = quelbyctl({command, "--replay", file, "--data-dir", folder.path()});
            EXPECT_EQ(refused.exitStatus, 1);
            EXPECT_THAT(refused.output, IsEmpty()); // nothing is played before the whole recording is checked
            EXPECT_EQ(refused.errors, "quelbyctl: cannot replay \"" + file + "\": " + why + '\n');
        }
    }
    EXPECT_THAT(quelbyctl({"status", "--replay", folder.path() / "missing"}).errors,
                HasSubstr("No such file or directory"));
    EXPECT_THAT(quelbyctl({"status", "--replay", folder.path()}).errors, HasSubstr("it is a directory"));
}

TEST(Quelbyctl, SaysWhenItsOutputCannotBeWritten) {
    const TemporaryFolder folder;
    const auto file = folder.write("it.jsonl", laptopRecording(3)).string();
    const auto shell = [&](const std::string& arguments) {
        return runProgram({"/bin/sh", "-c", QUELBY_BINARY_DIR "/quelbyctl " + arguments + " > /dev/full"});
    };
    for (const auto& arguments : {"status --replay " + file, "watch --fast --replay " + file,
                                  "watch --json --fast --replay " + file, std::string("--help")}) {
        const auto refused = shell(arguments);
        EXPECT_EQ(refused.exitStatus, 1);
        EXPECT_EQ(refused.errors, "quelbyctl: cannot write to standard output: No space left on device\n");
    }
}

TEST(Quelbyctl, WritesAndReadsNumbersTheSameUnderEveryLocale) {
    const TemporaryFolder folder;
    const auto file = folder.write("it.jsonl", laptopRecording(5)).string();
    const std::vector<std::string> words{"watch", "--json", "--interval", "0.01", "--replay", file};
    const auto expected = quelbyctl(words);
    EXPECT_EQ(expected.exitStatus, 0);
    for (const auto* locale : {"de_DE.UTF-8", "C", "POSIX", "no_SUCH"}) {
        const auto result = quelbyctl(words, {{"LC_ALL", locale}});
        EXPECT_EQ(result.output, expected.output) << locale;
        EXPECT_THAT(result.errors, IsEmpty()) << locale;
    }
}

} // namespace
} // namespace quelby
