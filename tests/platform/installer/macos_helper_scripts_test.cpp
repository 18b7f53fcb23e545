#include "platform/installer/macos_helper_scripts.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "platform/installer/launchd_property_list.h"
#include "shell_check.h"

namespace quelby {
namespace {

const std::string beginning = "do shell script \"";
const std::string end = "\" with administrator privileges";

const std::string install = macosInstallScript("/Applications/Quelby.app/Contents/Resources");

const std::string removal =
    "launchctl unload '/Library/LaunchDaemons/com.quelby.limiter.plist' 2>/dev/null; "
    "rm -f '/Library/LaunchDaemons/com.quelby.limiter.plist'; "
    "rm -f '/Library/PrivilegedHelperTools/pwr_limiter'; rm -rf '/Library/Application Support/Quelby'";

// What the shell gets to see: the content of the literal, whose backslashes the language takes away. A quote
// without one would end the literal.
std::string shellCommand(const std::string& script) {
    EXPECT_EQ(script.substr(0, beginning.size()), beginning);
    EXPECT_EQ(script.substr(script.size() - end.size()), end);
    const auto literal = script.substr(beginning.size(), script.size() - beginning.size() - end.size());
    std::string command;
    for (std::size_t position = 0; position < literal.size(); ++position) {
        EXPECT_NE(literal[position], '"') << "at " << position;
        if (literal[position] != '\\') {
            command += literal[position];
            continue;
        }
        const char escaped = literal.at(++position);
        EXPECT_TRUE(escaped == 'n' || escaped == '"') << escaped;
        command += escaped == 'n' ? '\n' : escaped;
    }
    return command;
}

std::size_t occurrences(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (auto position = text.find(part); position != std::string::npos;
         position = text.find(part, position + 1)) {
        ++count;
    }
    return count;
}

TEST(MacosInstallScript, GivesTheShellTheseCommands) {
    EXPECT_EQ(shellCommand(install),
              "mkdir -p '/Library/PrivilegedHelperTools' '/Library/Application Support/Quelby' && "
              "cp '/Applications/Quelby.app/Contents/Resources/pwr_limiter' "
              "'/Library/PrivilegedHelperTools/pwr_limiter' && "
              "chmod 755 '/Library/PrivilegedHelperTools/pwr_limiter' && "
              "chmod 777 '/Library/Application Support/Quelby' && "
              "cat > '/Library/LaunchDaemons/com.quelby.limiter.plist' << 'PLIST'\n" +
                  launchdPropertyList() +
                  "PLIST\n"
                  "launchctl load '/Library/LaunchDaemons/com.quelby.limiter.plist'");
}

TEST(MacosInstallScript, HasThreeLineBreaksOfItsOwnAndElevenThatAreEscaped) {
    EXPECT_EQ(occurrences(install, "\n"), 3U);
    EXPECT_EQ(occurrences(install, "\\n"), 11U);
    EXPECT_EQ(occurrences(install, "\\\""), 10U);
    EXPECT_EQ(occurrences(install, "<< 'PLIST'\n<?xml version=\\\"1.0\\\""), 1U);
    EXPECT_EQ(occurrences(install, "</dict>\\n</plist>\nPLIST\nlaunchctl load"), 1U);
}

TEST(MacosInstallScript, TakesThePathOfTheResourcesAsItStands) {
    EXPECT_NE(macosInstallScript("/A \"B\" it's").find(" && cp '/A \"B\" it's/pwr_limiter' '/Library/"),
              std::string::npos);
}

TEST(MacosUpdateScript, StopsTheHelperAndRemovesItsExecutableBeforeItInstalls) {
    EXPECT_EQ(shellCommand(macosUpdateScript("/Applications/Quelby.app/Contents/Resources")),
              "launchctl unload '/Library/LaunchDaemons/com.quelby.limiter.plist' 2>/dev/null; "
              "rm -f '/Library/PrivilegedHelperTools/pwr_limiter'; " +
                  shellCommand(install));
}

TEST(MacosUninstallScript, StopsTheHelperAndRemovesEachPart) {
    EXPECT_EQ(macosUninstallScript(), beginning + removal + end);
}

TEST(MacosFullUninstallScript, RemovesTheProgramAsWell) {
    EXPECT_EQ(macosFullUninstallScript("/Applications/Quelby.app"),
              beginning + removal + "; rm -rf '/Applications/Quelby.app'" + end);
}

TEST(MacosHelperScripts, ContainPlainPosixShell) {
    for (const auto& script :
         {install, macosUninstallScript(), macosFullUninstallScript("/Applications/Q.app")}) {
        EXPECT_TRUE(passesShellcheck(shellCommand(script))) << script;
    }
}

} // namespace
} // namespace quelby
