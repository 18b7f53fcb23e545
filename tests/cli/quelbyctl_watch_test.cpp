#include <algorithm>
#include <csignal>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/golden.h"
#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"
#include "ui/presentation/dashboard.h"

namespace quelby {
namespace {

using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr const char* enterScreen = "\x1b[?1049h";
constexpr const char* leaveScreen = "\x1b[?25h\x1b[?1049l";

class QuelbyctlWatch : public testing::Test {
protected:
    // Plays slowly, so that it is still there when a test does something to it.
    [[nodiscard]] std::vector<std::string> watching(const std::vector<std::string>& more = {}) const {
        std::vector<std::string> words{"watch", "--replay", recording, "--interval", "1000"};
        words.insert(words.end(), more.begin(), more.end());
        return quelbyctlWords(words);
    }

    static Environment withoutColours() {
        auto environment = plainEnvironment();
        environment["NO_COLOR"] = "1";
        return environment;
    }

    TemporaryFolder folder;
    std::string recording = folder.write("it.jsonl", laptopRecording(4));
    PublishedFields laptopOnBattery;
    Dashboard said = dashboard(laptopOnBattery, 0, linuxWords);
};

TEST_F(QuelbyctlWatch, PrintsALineForEachCycleWhereThereIsNoTerminal) {
    const auto result = quelbyctl({"watch", "--fast", "--replay", recording});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.errors, IsEmpty());
    expectGolden(result.output, "data/pages/watch.txt");
}

TEST_F(QuelbyctlWatch, PrintsAnObjectForEachCycleAsJson) {
    const auto result = quelbyctl({"watch", "--json", "--fast", "--replay", recording});
    std::istringstream lines(result.output);
    int percent = 80;
    for (std::string line; std::getline(lines, line); --percent) {
        EXPECT_EQ(nlohmann::json::parse(line)["batteryPercent"], percent);
    }
    EXPECT_EQ(percent, 76);
}

TEST_F(QuelbyctlWatch, EndsAfterTheNumberOfCyclesAskedFor) {
    const auto some = quelbyctl({"watch", "--count", "2", "--fast", "--replay", recording});
    EXPECT_EQ(std::count(some.output.begin(), some.output.end(), '\n'), 2);
    const auto one = quelbyctl({"watch", "--count", "1", "--interval", "1000"});
    EXPECT_EQ(std::count(one.output.begin(), one.output.end(), '\n'), 1);
    const auto all = quelbyctl({"watch", "--count", "100", "--fast", "--replay", recording});
    EXPECT_EQ(std::count(all.output.begin(), all.output.end(), '\n'), 4);
}

TEST_F(QuelbyctlWatch, RedrawsInPlaceInATerminal) {
    TerminalProgram program(quelbyctlWords({"watch", "--fast", "--replay", recording}), 80, 70,
                            plainEnvironment());
    const auto result = program.end();
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.output, StartsWith(enterScreen));
    EXPECT_THAT(result.output, EndsWith(leaveScreen));
    for (const auto* level : {"80%", "79%", "78%", "77%"}) {
        EXPECT_THAT(result.output, HasSubstr(level));
    }
}

TEST_F(QuelbyctlWatch, GivesTheTerminalBackOnCtrlC) {
    TerminalProgram program(watching(), 80, 70, plainEnvironment());
    program.showsUntil(said.efficiency.title.text);
    EXPECT_FALSE(program.echoes());
    program.type("\x03");
    const auto result = program.end();
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.output, EndsWith(leaveScreen));
}

TEST_F(QuelbyctlWatch, GivesTheTerminalBackHoweverItIsAskedToEnd) {
    for (const int number : {SIGTERM, SIGHUP, SIGQUIT}) {
        TerminalProgram program(watching(), 80, 70, plainEnvironment());
        program.showsUntil(said.efficiency.title.text);
        program.signal(number);
        const auto result = program.end();
        EXPECT_EQ(result.exitStatus, 0);
        EXPECT_THAT(result.output, EndsWith(leaveScreen));
    }
}

TEST_F(QuelbyctlWatch, FollowsTheTerminalsSize) {
    TerminalProgram program(watching(), 80, 70, withoutColours());
    program.showsUntil("↯ Quelby" + std::string(54, ' ') + "22:13:20");
    program.showsUntil(said.efficiency.title.text);
    program.resize(30, 5);
    program.showsUntil("↯ Quelby" + std::string(12, ' ') + "22:13:20");
    program.signal(SIGTERM);
    EXPECT_THAT(program.end().output,
                Not(HasSubstr(said.efficiency.title.text))); // five lines have no room for it
}

TEST_F(QuelbyctlWatch, GivesTheTerminalBackWhileItIsStopped) {
    TerminalProgram program(watching(), 80, 70, plainEnvironment());
    program.showsUntil(said.efficiency.title.text);
    program.signal(SIGTSTP);
    program.showsUntil(leaveScreen);
    program.waitUntilStopped();
    program.signal(SIGCONT);
    const auto again = program.showsUntil(said.efficiency.title.text);
    EXPECT_THAT(again, HasSubstr(enterScreen));
    EXPECT_FALSE(program.echoes());
    program.signal(SIGTERM);
    EXPECT_EQ(program.end().exitStatus, 0);
}

TEST_F(QuelbyctlWatch, UsesTheColoursThatTheTerminalHas) {
    const auto shown = [&](const Environment& terminal) {
        auto environment = plainEnvironment();
        environment.insert(terminal.begin(), terminal.end());
        TerminalProgram program(quelbyctlWords({"watch", "--fast", "--replay", recording}), 80, 70,
                                environment);
        return program.end().output;
    };
    EXPECT_THAT(shown({{"TERM", "xterm"}, {"COLORTERM", ""}}), HasSubstr("\x1b[35m")); // purple
    EXPECT_THAT(shown({{"TERM", "xterm-256color"}, {"COLORTERM", ""}}), HasSubstr("\x1b[38;5;134m"));
    EXPECT_THAT(shown({{"TERM", "xterm-256color"}, {"COLORTERM", "truecolor"}}),
                HasSubstr("\x1b[38;2;166;98;214m"));
    EXPECT_THAT(shown(withoutColours()), Not(ContainsRegex("\x1b\\[[0-9;]*m")));
}

TEST_F(QuelbyctlWatch, EndsWithQ) {
    TerminalProgram program(watching(), 80, 70, plainEnvironment());
    program.showsUntil("quit");
    program.type("xq");
    const auto result = program.end();
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.output, EndsWith(leaveScreen));
}

TEST_F(QuelbyctlWatch, ShowsTheRangeOfTheKey) {
    TerminalProgram program(watching(), 80, 70, plainEnvironment());
    program.showsUntil("\x1b[7;38;5;69m 30m ");
    program.type("3");
    program.showsUntil("\x1b[7;38;5;69m 24h ");
    program.type("5");
    program.type("1");
    program.showsUntil("\x1b[7;38;5;69m 30m ");
}

TEST_F(QuelbyctlWatch, ShowsWhereTheEnergyWentAndLeadsBack) {
    TerminalProgram program(watching(), 80, 70, plainEnvironment());
    program.showsUntil(said.powerBadge.caption.text);
    program.type("e");
    program.showsUntil("Nothing recorded yet");
    program.type("5");
    program.showsUntil("\x1b[7;38;5;69m On Battery ");
    program.type("e");
    program.showsUntil(said.powerBadge.caption.text);
    program.type("e");
    program.showsUntil("By Application");
    program.type("\x1b");
    program.showsUntil(said.powerBadge.caption.text);
}

TEST_F(QuelbyctlWatch, ExplainsItsKeys) {
    TerminalProgram program(watching(), 80, 70, plainEnvironment());
    program.showsUntil("help");
    program.type("?");
    program.showsUntil("show or hide this help");
    program.type("?");
    program.showsUntil(said.powerBadge.caption.text);
    program.type("?");
    program.showsUntil("show or hide this help");
    program.type("\x1b");
    program.showsUntil(said.powerBadge.caption.text);
}

TEST_F(QuelbyctlWatch, ScrollsToWhatHasNoRoom) {
    TerminalProgram program(watching(), 60, 20, plainEnvironment());
    EXPECT_THAT(program.showsUntil("↓ more"), Not(HasSubstr(said.details->title.text)));
    program.type("\x1b[F");
    program.showsUntil(said.details->title.text);
    program.type("\x1b[H");
    program.showsUntil(said.chargeLimit->title.text);
    program.type("\x1b[6~");
    program.showsUntil(said.components.title.text);
}

TEST_F(QuelbyctlWatch, PrintsLinesInATerminalThatCannotRedraw) {
    auto environment = plainEnvironment();
    environment["TERM"] = "dumb";
    TerminalProgram program(quelbyctlWords({"watch", "--fast", "--replay", recording}), 80, 70, environment);
    const auto result = program.end();
    EXPECT_THAT(result.output, StartsWith("22:13:20  80 %"));
    EXPECT_THAT(result.output, Not(HasSubstr("\x1b")));
}

} // namespace
} // namespace quelby
