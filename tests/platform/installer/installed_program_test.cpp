#include "platform/installer/installed_program.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

namespace fs = std::filesystem;

class InstalledProgramTest : public testing::Test {
protected:
    void write(const std::vector<std::string>& files) const {
        for (const auto& name : files) {
            folder.write(name, "");
        }
    }

    // By their paths below the folder.
    [[nodiscard]] std::vector<std::string> names(const std::vector<fs::path>& paths) const {
        std::vector<std::string> all;
        all.reserve(paths.size());
        for (const auto& path : paths) {
            all.push_back(path.lexically_relative(folder.path()).string());
        }
        return all;
    }

    [[nodiscard]] InstalledProgram found(const char* program = "bin/quelby") const {
        return installedProgram(folder.path() / program);
    }

    TemporaryFolder folder;
};

const std::vector<std::string> installedFiles{"bin/quelby",
                                              "bin/quelbyctl",
                                              "lib/quelby/quelby-dashboard.so",
                                              "lib/quelby/quelby-desktop.so",
                                              "libexec/quelby/pwr_limiter",
                                              "share/applications/com.quelby.Quelby.desktop",
                                              "share/metainfo/com.quelby.Quelby.metainfo.xml",
                                              "share/dbus-1/services/com.quelby.Quelby.service",
                                              "share/icons/hicolor/48x48/apps/quelby.png",
                                              "share/icons/hicolor/scalable/apps/com.quelby.Quelby.svg",
                                              "share/icons/hicolor/symbolic/apps/quelby-symbolic.svg",
                                              "share/man/man1/quelbyctl.1.gz",
                                              "share/man/man5/quelby-recording.5",
                                              "share/man/man8/pwr_limiter.8",
                                              "share/polkit-1/actions/com.quelby.limiter.policy",
                                              "share/quelby/recordings/laptop-on-battery.jsonl",
                                              "lib/systemd/user/quelby-recorder.service",
                                              "share/bash-completion/completions/quelbyctl",
                                              "share/zsh/site-functions/_quelbyctl"};

TEST_F(InstalledProgramTest, IsAllThatWasInstalledBelowThePrefix) {
    write(installedFiles);
    EXPECT_THAT(names(found().files), UnorderedElementsAreArray(installedFiles));
    EXPECT_THAT(names(found().folders),
                ElementsAre("lib/quelby", "libexec/quelby", "share/quelby/recordings", "share/quelby"));
}

TEST_F(InstalledProgramTest, IsNothingOfOtherProgramsAround) {
    write(installedFiles);
    write({"bin/sh", "bin/quelby-of-somebody-else", "bin/quelbyctl2", "lib/other/quelby-dashboard.so",
           "share/applications/quelbyx.desktop", "share/applications/com.quelby.desktop",
           "share/icons/hicolor/48x48/apps/other.png", "share/icons/hicolor/48x48/quelby.png",
           "share/icons/other/48x48/apps/quelby.png", "share/man/man1/quelby2.1", "quelby"});
    EXPECT_THAT(names(found().files), UnorderedElementsAreArray(installedFiles));
}

TEST_F(InstalledProgramTest, IsWhatIsThereAndNoMore) {
    write({"bin/quelby", "lib/quelby/quelby-dashboard.so"});
    EXPECT_THAT(names(found().files), ElementsAre("bin/quelby", "lib/quelby/quelby-dashboard.so"));
    EXPECT_THAT(names(found().folders), ElementsAre("lib/quelby"));
    EXPECT_EQ(found("bin/missing").files, found().files);
    EXPECT_THAT(found("elsewhere/quelby").files, IsEmpty());
}

// Which is a folder called bin, too.
TEST_F(InstalledProgramTest, InABuildTreeIsWhatLiesBesideItAlone) {
    write(installedFiles);
    write({"bin/quelby-dashboard.so", "bin/quelby-desktop.so", "bin/linux_tests", "bin/second_start",
           "CMakeCache.txt"});
    EXPECT_THAT(names(found().files),
                UnorderedElementsAre("bin/quelby", "bin/quelbyctl", "bin/quelby-dashboard.so",
                                     "bin/quelby-desktop.so"));
    EXPECT_THAT(found().folders, IsEmpty());
}

TEST_F(InstalledProgramTest, WithoutItsLibraryIsWhatLiesBesideItAlone) {
    write({"bin/quelby", "bin/quelbyctl", "share/applications/quelby.desktop"});
    EXPECT_THAT(names(found().files), UnorderedElementsAre("bin/quelby", "bin/quelbyctl"));
    EXPECT_THAT(found().folders, IsEmpty());
}

TEST_F(InstalledProgramTest, InAnyOtherFolderIsWhatLiesBesideItAlone) {
    write({"tools/quelby", "lib/quelby/quelby-dashboard.so", "libexec/quelby/pwr_limiter"});
    EXPECT_THAT(names(found("tools/quelby").files), ElementsAre("tools/quelby"));
}

TEST_F(InstalledProgramTest, ReachesNothingThroughALinkInPlaceOfItsOwnFolder) {
    write({"bin/quelby", "lib/quelby/quelby-dashboard.so", "etc/passwd"});
    fs::create_directories(folder.path() / "libexec");
    fs::create_directory_symlink(folder.path() / "etc", folder.path() / "libexec" / "quelby");
    EXPECT_THAT(names(found().files), ElementsAre("bin/quelby", "lib/quelby/quelby-dashboard.so"));
    EXPECT_THAT(names(found().folders), ElementsAre("lib/quelby"));
}

TEST_F(InstalledProgramTest, LeavesFoldersWithinItsOwnToWhoeverMadeThem) {
    write({"bin/quelby", "lib/quelby/quelby-dashboard.so", "lib/quelby/somebody's/file"});
    EXPECT_THAT(names(found().files), ElementsAre("bin/quelby", "lib/quelby/quelby-dashboard.so"));
}

} // namespace
} // namespace quelby
