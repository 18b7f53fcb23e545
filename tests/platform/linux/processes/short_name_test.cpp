#include "platform/linux/processes/short_name.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

using namespace std::string_literals;

constexpr auto cut = "network-manager"; // of network-manager-applet

TEST(ShortName, MayBeCutAtExactly15Bytes) {
    EXPECT_TRUE(mayBeCut(cut));
    EXPECT_FALSE(mayBeCut("network-manage"));
    EXPECT_FALSE(mayBeCut("kworker/u16:3-events_unbound"));
}

TEST(ShortName, IsCompletedFromTheExecutable) {
    EXPECT_EQ(nameFromExecutable(cut, "/usr/bin/network-manager-applet"), "network-manager-applet");
    EXPECT_EQ(nameFromExecutable(cut, "/usr/bin/network-manager"), cut);
    EXPECT_EQ(nameFromExecutable(cut, "/opt/network-manager x/network-manager applet"),
              "network-manager applet");
}

TEST(ShortName, DoesNotSayThatTheExecutableWasDeleted) {
    EXPECT_EQ(nameFromExecutable(cut, "/usr/bin/network-manager-applet (deleted)"), "network-manager-applet");
}

TEST(ShortName, IsNotThatOfAnotherExecutable) {
    EXPECT_EQ(nameFromExecutable(cut, "/usr/bin/python3.11"), "");
    EXPECT_EQ(nameFromExecutable(cut, "/opt/network-manager-applet/run"), "");
    EXPECT_EQ(nameFromExecutable(cut, ""), "");
}

TEST(ShortName, IsCompletedFromTheProgramsArgument) {
    EXPECT_EQ(nameFromCommandLine(cut, "/usr/bin/network-manager-applet\0--hidden\0"s),
              "network-manager-applet");
    EXPECT_EQ(nameFromCommandLine(cut, "network-manager-applet"), "network-manager-applet");
}

TEST(ShortName, IsCompletedFromTheScriptBehindItsInterpreter) {
    EXPECT_EQ(nameFromCommandLine(cut, "/usr/bin/python3\0/usr/bin/network-manager-applet\0-x\0"s),
              "network-manager-applet");
    EXPECT_EQ(nameFromCommandLine(cut, "/usr/bin/python3\0-Es\0/usr/bin/network-manager-applet\0"s),
              "network-manager-applet");
}

TEST(ShortName, IsNotLookedForAmongAScriptsArguments) {
    EXPECT_EQ(nameFromCommandLine(cut, "python3\0run.py\0/home/me/network-manager-passwords\0"s), "");
    EXPECT_EQ(nameFromCommandLine(cut, "python3\0-E\0-s\0/home/me/network-manager-passwords\0"s), "");
}

TEST(ShortName, LeaksNothingOfARewrittenCommandLine) {
    for (const auto* line :
         {"network-manager-applet --secret=/a/b", "/usr/bin/network-manager-applet --secret=/a/b",
          "network-manager-applet\tsecret"}) {
        EXPECT_EQ(nameFromCommandLine(cut, line), "network-manager-applet") << line;
    }
    EXPECT_EQ(nameFromCommandLine(cut, "network-manager-applet/secret"), "");
    EXPECT_EQ(nameFromCommandLine(cut, "network-manager --secret=/a/network-manager-b"), cut);
    EXPECT_EQ(nameFromCommandLine(cut, "other --secret=/a/network-manager-b"), "");
}

TEST(ShortName, IsNoLongerThanAFilesNameCanBe) {
    EXPECT_EQ(nameFromCommandLine(cut, cut + std::string(240, 'x')).size(), 255U);
    EXPECT_EQ(nameFromCommandLine(cut, cut + std::string(241, 'x')), "");
}

TEST(ShortName, IsNothingForAnEmptyCommandLine) {
    EXPECT_EQ(nameFromCommandLine(cut, ""), "");
    EXPECT_EQ(nameFromCommandLine(cut, "\0\0\0"s), "");
}

TEST(ListedName, IsOnePrintableLine) {
    EXPECT_EQ(listedName("Web Content"), "Web Content");
    EXPECT_EQ(listedName("a\nb\x1B[2J\xFF"), "a?b?[2J?");
}

TEST(ListedName, IsAQuestionMarkWhereThereIsNothingToSee) {
    EXPECT_EQ(listedName(""), "?");
    EXPECT_EQ(listedName(" \t "), "?");
}

} // namespace
} // namespace quelby
