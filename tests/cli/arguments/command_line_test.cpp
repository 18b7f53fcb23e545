#include "cli/arguments/command_line.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/version.h"

namespace quelby::cli {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

std::variant<Request, Answer> parse(std::vector<const char*> words) {
    words.insert(words.begin(), "quelbyctl");
    return parseCommandLine(static_cast<int>(words.size()), words.data());
}

Request request(const std::vector<const char*>& words) {
    const auto parsed = parse(words);
    EXPECT_TRUE(std::holds_alternative<Request>(parsed));
    return std::get<Request>(parsed);
}

Answer answer(const std::vector<const char*>& words) {
    const auto parsed = parse(words);
    return std::holds_alternative<Answer>(parsed) ? std::get<Answer>(parsed) : Answer{-1, "accepted"};
}

TEST(CommandLine, WatchesEveryThreeSecondsWithoutEndUnlessToldOtherwise) {
    const auto watch = std::get<WatchCommand>(request({"watch"}).command);
    EXPECT_EQ(watch.form, OutputForm::text);
    EXPECT_EQ(watch.repetition.count, std::nullopt);
    EXPECT_EQ(watch.repetition.interval.count(), 3.0);
}

TEST(CommandLine, TakesTheOptionsOfEachCommand) {
    const auto watch =
        std::get<WatchCommand>(request({"watch", "--json", "--count", "5", "--interval", "0.01"}).command);
    EXPECT_EQ(watch.form, OutputForm::json);
    EXPECT_EQ(watch.repetition.count, 5);
    EXPECT_EQ(watch.repetition.interval.count(), 0.01);
    EXPECT_EQ(std::get<StatusCommand>(request({"status", "--json"}).command).form, OutputForm::json);
    const auto record = std::get<RecordCommand>(request({"record", "--count=2", "it.jsonl"}).command);
    EXPECT_EQ(record.file, "it.jsonl");
    EXPECT_EQ(record.repetition.count, 2);
}

TEST(CommandLine, TakesRangeAndGroupingOfTheEnergy) {
    const auto usual = std::get<EnergyCommand>(request({"energy"}).command);
    EXPECT_EQ(usual.range, EnergyRange::today);
    EXPECT_EQ(usual.by, EnergyGrouping::app);
    const auto energy = std::get<EnergyCommand>(
        request({"energy", "--range", "since-unplugged", "--by", "day", "--csv"}).command);
    EXPECT_EQ(energy.range, EnergyRange::sinceUnplugged);
    EXPECT_EQ(energy.by, EnergyGrouping::day);
    EXPECT_EQ(energy.form, OutputForm::csv);
    EXPECT_EQ(std::get<SleepsCommand>(request({"sleeps", "--json"}).command).form, OutputForm::json);
    EXPECT_EQ(std::get<SessionsCommand>(request({"sessions"}).command).form, OutputForm::text);
    EXPECT_EQ(std::get<HealthCommand>(request({"health", "--csv"}).command).form, OutputForm::csv);
}

TEST(CommandLine, TakesTheCommonOptionsBeforeAndBehindTheCommand) {
    for (const auto& words :
         {std::vector{"--replay", "r", "--fast", "--sysfs-root", "s", "--proc-root", "p", "--preferences",
                      "f", "--data-dir", "d", "--config-dir", "c", "watch"},
          std::vector{"watch", "--replay", "r", "--fast", "--sysfs-root", "s", "--proc-root", "p",
                      "--preferences", "f", "--data-dir", "d", "--config-dir", "c"}}) {
        const auto asked = request(words);
        EXPECT_EQ(asked.arguments.machine.replay, "r");
        EXPECT_EQ(asked.arguments.machine.roots.sysfs, "s");
        EXPECT_EQ(asked.arguments.machine.roots.proc, "p");
        EXPECT_EQ(asked.arguments.machine.preferences, "f");
        EXPECT_EQ(asked.arguments.machine.dataDir, "d");
        EXPECT_EQ(asked.arguments.machine.configDir, "c");
        EXPECT_EQ(asked.arguments.pace, Pace::withoutWaiting);
    }
}

TEST(CommandLine, LooksAtThisComputerUnlessToldOtherwise) {
    const auto asked = request({"status"});
    EXPECT_EQ(asked.arguments.machine.replay, std::nullopt);
    EXPECT_EQ(asked.arguments.machine.roots.sysfs, "/sys");
    EXPECT_EQ(asked.arguments.machine.roots.proc, "/proc");
    EXPECT_EQ(asked.arguments.pace, Pace::asAsked);
}

TEST(CommandLine, RefusesWrongUsageWithOneSentence) {
    const std::vector<const char*> wrong[] = {{},
                                              {"unknown"},
                                              {"status", "--bogus"},
                                              {"status", "extra"},
                                              {"watch", "--count"},
                                              {"watch", "--count", "-1"},
                                              {"watch", "--count", "0"},
                                              {"watch", "--count", "1.5"},
                                              {"watch", "--count", "99999999999999999999"},
                                              {"watch", "--interval", "0"},
                                              {"watch", "--interval", "0.0099"},
                                              {"watch", "--interval", "-3"},
                                              {"watch", "--interval", "0,5"},
                                              {"watch", "--interval", "nan"},
                                              {"watch", "--interval", "1e7"},
                                              {"watch", "--interval", ""},
                                              {"watch", "--fast"},
                                              {"status", "--count", "1"},
                                              {"record"},
                                              {"record", "a", "b"},
                                              {"watch", "status"}};
    for (const auto& words : wrong) {
        const auto refused = answer(words);
        EXPECT_EQ(refused.exitStatus, 2) << testing::PrintToString(words);
        EXPECT_THAT(refused.text, StartsWith("quelbyctl: "));
        EXPECT_EQ(refused.text.find('\n'), refused.text.size() - 1) << refused.text;
    }
    EXPECT_THAT(answer({"watch", "--count", "-1"}).text,
                HasSubstr("--count takes a whole number of 1 or more, not \"-1\""));
}

TEST(CommandLine, NamesACommandThatDoesNotExistAndTheNearestThatDoes) {
    const std::string more = " (quelbyctl --help tells more)\n";
    EXPECT_EQ(answer({"statsu"}).text,
              R"(quelbyctl: there is no command "statsu"; the nearest is "status")" + more);
    EXPECT_THAT(answer({"foo"}).text, HasSubstr(R"(there is no command "foo"; the nearest is ")"));
    for (const auto& words : {std::vector{"hist", "--json"}, std::vector{"--data-dir", "d", "hist"},
                              std::vector{"--jsn", "hist", "x"}, std::vector{"hist", "--data-dir"}}) {
        EXPECT_THAT(answer(words).text, HasSubstr(R"("hist"; the nearest is "history")"));
    }
    EXPECT_THAT(answer({"\x1b[2J"}).text, Not(HasSubstr("\x1b")));
    EXPECT_THAT(answer({"status", "foo"}).text, HasSubstr("foo"));
    EXPECT_THAT(answer({"--bogus"}).text, Not(HasSubstr("there is no command")));
    EXPECT_EQ(answer({"foo", "--help"}).exitStatus, 0);
}

TEST(CommandLine, AnswersHelpAndVersionEverywhere) {
    EXPECT_EQ(answer({"--version"}).text, fmt::format("quelbyctl {}\n", version()));
    EXPECT_EQ(answer({"watch", "--version"}).exitStatus, 0);
    EXPECT_THAT(answer({"--help"}).text, HasSubstr("--replay"));
    EXPECT_THAT(answer({"watch", "--help"}).text, HasSubstr("--interval"));
    EXPECT_THAT(answer({"record", "-h"}).text, HasSubstr("FILE"));
    for (const auto* command : {"status", "watch", "record"}) {
        EXPECT_EQ(answer({command, "--help"}).exitStatus, 0);
        EXPECT_THAT(answer({command, "--help"}).text, EndsWith("\n"));
    }
}

} // namespace
} // namespace quelby::cli
