#include "platform/installer/scripted_installer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/installer/linux_helper_scripts.h"
#include "platform/installer/macos_helper_scripts.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScriptedInstallerTest : public testing::Test {
protected:
    ScriptedInstallerTest() {
        folders.support = "/opt/it's";
        folders.helperResources = "/opt/it's/resources";
    }

    [[nodiscard]] ScriptedInstaller installer(const HelperScripts& scripts) {
        return {folders, scripts, [this](const std::string& script) {
                    ran.push_back(script);
                    return agrees;
                }};
    }

    [[nodiscard]] bool isLoadedWhere(const std::vector<std::string>& query) {
        auto scripts = linuxHelperScripts();
        scripts.query = query;
        return installer(scripts).isLoaded();
    }

    fake::NamedFolders folders;
    bool agrees = true;
    std::vector<std::string> ran; // as root
};

TEST_F(ScriptedInstallerTest, RunsTheScriptsOfLinux) {
    auto system = installer(linuxHelperScripts());
    EXPECT_TRUE(system.install());
    EXPECT_TRUE(system.uninstall());
    EXPECT_THAT(ran, ElementsAre(linuxInstallScript("/opt/it's/resources"), linuxUninstallScript()));
    EXPECT_EQ(system.packageManager(), std::nullopt);
}

TEST_F(ScriptedInstallerTest, RemovesWhatLiesOnTheDiskOfLinux) {
    const TemporaryFolder folder;
    folders.support = folder.path();
    const auto program = folder.write("quelby", "");
    const auto library = folder.write("quelby-dashboard.so", "");
    auto system = installer(linuxHelperScripts());
    EXPECT_TRUE(system.uninstallEverything());
    EXPECT_THAT(ran, ElementsAre(linuxFullUninstallScript({{program, library}, {}})));
}

TEST_F(ScriptedInstallerTest, LeavesTheFilesOfAPackageToItsManager) {
    const TemporaryFolder folder;
    folders.support = folder.path();
    folder.write("quelby", "");
    auto scripts = linuxHelperScripts();
    scripts.packageManager = [](const std::filesystem::path&) { return std::optional(PackageManager::rpm); };
    auto system = installer(scripts);
    EXPECT_EQ(system.packageManager(), PackageManager::rpm);
    EXPECT_TRUE(system.uninstallEverything());
    EXPECT_THAT(ran, ElementsAre(linuxUninstallScript()));
}

TEST_F(ScriptedInstallerTest, UpdatesAHelperThatIsLoadedOnMacos) {
    auto scripts = macosHelperScripts();
    scripts.query = {"true"};
    EXPECT_TRUE(installer(scripts).install());
    scripts.query = {"false"};
    EXPECT_TRUE(installer(scripts).install());
    EXPECT_THAT(ran, ElementsAre(macosUpdateScript("/opt/it's/resources"),
                                 macosInstallScript("/opt/it's/resources")));
}

TEST_F(ScriptedInstallerTest, RunsTheScriptsOfMacos) {
    auto system = installer(macosHelperScripts());
    EXPECT_TRUE(system.install());
    EXPECT_TRUE(system.uninstall());
    EXPECT_TRUE(system.uninstallEverything());
    EXPECT_EQ(system.packageManager(), std::nullopt);
    EXPECT_THAT(ran, ElementsAre(macosInstallScript("/opt/it's/resources"), macosUninstallScript(),
                                 macosFullUninstallScript("/opt/it's/quelby")));
}

TEST_F(ScriptedInstallerTest, SaysWhatWasNotDone) {
    agrees = false;
    auto system = installer(linuxHelperScripts());
    EXPECT_EQ(system.install().error().sentence, "the helper was not installed");
    EXPECT_EQ(system.uninstall().error().sentence, "the helper was not removed");
    EXPECT_EQ(system.uninstallEverything().error().sentence, "the helper and the program were not removed");
    EXPECT_EQ(ran.size(), 3U);
}

TEST_F(ScriptedInstallerTest, AsksNobodyWhereThereIsNothingToInstall) {
    folders.helperResources.reset();
    EXPECT_FALSE(installer(linuxHelperScripts()).install());
    EXPECT_THAT(ran, IsEmpty());
}

TEST_F(ScriptedInstallerTest, AsksTheManagerOfEachSystemAboutTheHelper) {
    EXPECT_THAT(macosHelperScripts().query, ElementsAre("/bin/launchctl", "list", "com.quelby.limiter"));
    EXPECT_THAT(linuxHelperScripts().query,
                ElementsAre("systemctl", "is-active", "--quiet", "com.quelby.limiter.service"));
}

TEST_F(ScriptedInstallerTest, TakesTheExitStatusForTheAnswer) {
    EXPECT_TRUE(isLoadedWhere({"/bin/sh", "-c", "echo Could not find service; exit 0"}));
    EXPECT_FALSE(isLoadedWhere({"/bin/sh", "-c", "exit 113"}));
    EXPECT_FALSE(isLoadedWhere({"/bin/sh", "-c", "kill -KILL $$"}));
    EXPECT_FALSE(isLoadedWhere({"/nonexistent/launchctl"}));
}

} // namespace
} // namespace quelby
