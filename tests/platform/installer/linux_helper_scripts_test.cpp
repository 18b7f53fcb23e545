#include "platform/installer/linux_helper_scripts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/installer/systemd_unit.h"
#include "shell_check.h"
#include "support/file_mode.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;

// The scripts at work below a root with every character that a shell could stumble over, with a systemctl
// that only writes down how it is called.
class LinuxHelperScriptsTest : public testing::Test {
protected:
    LinuxHelperScriptsTest() {
        const auto systemctl = folder.write("bin/systemctl", "#!/bin/sh\n"
                                                             "printf '%s\\n' \"$*\" >>\"$SYSTEMCTL_CALLS\"\n"
                                                             "exit \"$SYSTEMCTL_STATUS\"\n");
        fs::permissions(systemctl, fs::perms(0755));
        fs::create_directories(unit.parent_path());
        folder.write(resources.filename() / "pwr_limiter", "the helper");
    }

    [[nodiscard]] ProgramResult run(const std::string& script) const {
        const auto path = (folder.path() / "bin").string() + ':' + std::getenv("PATH");
        return runProgram({"/bin/sh", "-c", script}, {{"PATH", path},
                                                      {"SYSTEMCTL_CALLS", folder.path() / "calls"},
                                                      {"SYSTEMCTL_STATUS", std::to_string(systemctlStatus)},
                                                      {"TEST_ROOT", root}});
    }

    [[nodiscard]] ProgramResult install() const { return run(linuxInstallScript(resources, root)); }

    [[nodiscard]] std::string content(const fs::path& file) const {
        return folder.read(file.lexically_relative(folder.path()));
    }

    TemporaryFolder folder;
    int systemctlStatus = 0;
    fs::path root = folder.path() / "it's \"a\" $HOME `root`;\\\n\t*";
    fs::path resources = folder.path() / "what's within";
    fs::path shared = root / "var/lib/quelby";
    fs::path own = root / "var/lib/quelby-limiter";
    fs::path executable = root / "usr/local/libexec/pwr_limiter";
    fs::path unit = root / "etc/systemd/system/com.quelby.limiter.service";
};

const std::string installCalls =
    "daemon-reload\nenable com.quelby.limiter.service\nrestart com.quelby.limiter.service\n";
const std::string uninstallCalls = "disable --now com.quelby.limiter.service\ndaemon-reload\n";

TEST(LinuxHelperScripts, UseTheSystemsOwnPaths) {
    EXPECT_EQ(linuxInstallScript("/opt/it's/libexec"),
              "umask 022\n"
              "mkdir -p '/usr/local/libexec' '/var/lib/quelby' && "
              "cp -f '/opt/it'\\''s/libexec/pwr_limiter' '/usr/local/libexec/pwr_limiter' && "
              "chmod 755 '/usr/local/libexec/pwr_limiter' && chmod 777 '/var/lib/quelby' && "
              "cat > '/etc/systemd/system/com.quelby.limiter.service' << 'UNIT'\n" +
                  systemdUnit() +
                  "UNIT\n"
                  "systemctl daemon-reload && systemctl enable com.quelby.limiter.service && "
                  "systemctl restart com.quelby.limiter.service");
    EXPECT_EQ(linuxFullUninstallScript({{"/opt/bin/quelby", "/opt/it's"}, {"/opt/lib/quelby"}}),
              "systemctl disable --now com.quelby.limiter.service 2>/dev/null; "
              "'/usr/local/libexec/pwr_limiter' --restore 2>/dev/null; "
              "rm -f '/etc/systemd/system/com.quelby.limiter.service'; "
              "systemctl daemon-reload 2>/dev/null; "
              "rm -f '/usr/local/libexec/pwr_limiter'; rm -rf '/var/lib/quelby-limiter'; "
              "rm -rf '/var/lib/quelby'; "
              "rm -f '/opt/bin/quelby' '/opt/it'\\''s'; removed=$?; rmdir '/opt/lib/quelby' 2>/dev/null; "
              "exit $removed");
    EXPECT_EQ(linuxFullUninstallScript({{"/opt/quelby"}, {}}),
              linuxUninstallScript() + "; rm -f '/opt/quelby'; removed=$?; exit $removed");
    EXPECT_EQ(linuxFullUninstallScript({}), linuxUninstallScript());
}

TEST(LinuxHelperScripts, ArePlainPosixShell) {
    const fs::path resources = "/opt/what's within";
    const InstalledProgram program{{resources / "quelby", resources / "a b"}, {resources}};
    const fs::path elsewhere = "/it's a root";
    for (const auto& script :
         {linuxInstallScript(resources), linuxUninstallScript(), linuxFullUninstallScript(program),
          linuxInstallScript(resources, elsewhere), linuxFullUninstallScript(program, elsewhere)}) {
        EXPECT_TRUE(passesShellcheck(script)) << script;
    }
}

TEST_F(LinuxHelperScriptsTest, InstallEachPartWithItsModeAndStartTheService) {
    const auto installed = install();
    EXPECT_EQ(installed.exitStatus, 0);
    EXPECT_EQ(installed.output + installed.errors, "");
    EXPECT_EQ(content(executable), "the helper");
    EXPECT_EQ(modeOf(executable), 0755U);
    EXPECT_EQ(modeOf(shared), 0777U);
    EXPECT_EQ(content(unit), systemdUnit());
    EXPECT_EQ(folder.read("calls"), installCalls);
}

TEST_F(LinuxHelperScriptsTest, LeaveNothingOpenThatRootIsToRunWhateverTheUmask) {
    for (const mode_t mask : {0000U, 0077U}) {
        fs::remove_all(root / "usr");
        fs::remove(unit);
        const Umask narrower(mask);
        EXPECT_EQ(install().exitStatus, 0);
        EXPECT_EQ(modeOf(executable), 0755U);
        EXPECT_EQ(modeOf(executable.parent_path()), 0755U);
        EXPECT_EQ(modeOf(unit), 0644U);
    }
}

TEST_F(LinuxHelperScriptsTest, StopAtTheFirstStepThatFailsButStillStartTheService) {
    fs::remove(resources / "pwr_limiter");
    const auto installed = install();
    EXPECT_EQ(installed.exitStatus, 0);
    EXPECT_NE(installed.errors, "");
    EXPECT_FALSE(fs::exists(executable));
    EXPECT_FALSE(fs::exists(unit));
    EXPECT_NE(modeOf(shared), 0777U);
    EXPECT_EQ(folder.read("calls"), installCalls);
}

TEST_F(LinuxHelperScriptsTest, FailToInstallWhereTheServiceCannotBeStarted) {
    systemctlStatus = 3;
    EXPECT_EQ(install().exitStatus, 3);
    EXPECT_EQ(content(unit), systemdUnit());
}

TEST_F(LinuxHelperScriptsTest, ReplaceAHelperThatIsRunning) {
    fs::remove(resources / "pwr_limiter");
    fs::copy_file(fs::canonical("/bin/cat"), resources / "pwr_limiter");
    ASSERT_EQ(install().exitStatus, 0);
    TerminalProgram running({executable.string()}, 80, 24);
    running.type("ready\n");
    running.showsUntil("ready\r\nready"); // what is typed, and what the program makes of it
    fs::remove(resources / "pwr_limiter");
    folder.write(resources.filename() / "pwr_limiter", "the next helper");
    const auto installed = install();
    EXPECT_EQ(installed.errors, "");
    EXPECT_EQ(content(executable), "the next helper");
    EXPECT_EQ(modeOf(executable), 0755U);
}

TEST_F(LinuxHelperScriptsTest, UninstallWhatWasInstalledAndNothingElse) {
    ASSERT_EQ(install().exitStatus, 0);
    folder.write(shared.lexically_relative(folder.path()) / "status.json", "{}");
    const auto neighbour =
        folder.write(unit.lexically_relative(folder.path()).parent_path() / "other.service", "");
    fs::remove(folder.path() / "calls");
    EXPECT_EQ(run(linuxUninstallScript(root)).exitStatus, 0);
    EXPECT_FALSE(fs::exists(shared));
    EXPECT_FALSE(fs::exists(executable));
    EXPECT_FALSE(fs::exists(unit));
    EXPECT_TRUE(fs::exists(shared.parent_path()));
    EXPECT_TRUE(fs::exists(executable.parent_path()));
    EXPECT_TRUE(fs::exists(neighbour));
    EXPECT_TRUE(fs::exists(resources / "pwr_limiter"));
    EXPECT_EQ(folder.read("calls"), uninstallCalls);
}

TEST_F(LinuxHelperScriptsTest, HaveTheHelperPutBackWhatItFoundOnceItIsStoppedAndBeforeAnythingIsGone) {
    folder.write(resources.filename() / "pwr_limiter",
                 "#!/bin/sh\n"
                 "printf 'pwr_limiter %s, ' \"$*\" >>\"$SYSTEMCTL_CALLS\"\n"
                 "for path in /usr/local/libexec/pwr_limiter /var/lib/quelby /var/lib/quelby-limiter; do\n"
                 "    [ -e \"$TEST_ROOT$path\" ] && printf 'with %s ' \"$path\" >>\"$SYSTEMCTL_CALLS\"\n"
                 "done\n"
                 "echo >>\"$SYSTEMCTL_CALLS\"\n");
    ASSERT_EQ(install().exitStatus, 0);
    fs::create_directory(own);
    fs::remove(folder.path() / "calls");
    EXPECT_EQ(run(linuxUninstallScript(root)).exitStatus, 0);
    EXPECT_EQ(folder.read("calls"), "disable --now com.quelby.limiter.service\n"
                                    "pwr_limiter --restore, with /usr/local/libexec/pwr_limiter "
                                    "with /var/lib/quelby with /var/lib/quelby-limiter \n"
                                    "daemon-reload\n");
    EXPECT_FALSE(fs::exists(own));
}

TEST_F(LinuxHelperScriptsTest, UninstallTheRestWhereTheServiceCannotBeStopped) {
    ASSERT_EQ(install().exitStatus, 0);
    systemctlStatus = 1;
    const auto removed = run(linuxUninstallScript(root));
    EXPECT_EQ(removed.exitStatus, 0);
    EXPECT_EQ(removed.errors, "");
    EXPECT_FALSE(fs::exists(shared));
    EXPECT_FALSE(fs::exists(unit));
}

TEST_F(LinuxHelperScriptsTest, UninstallTheProgramAsWellWhereThatIsAsked) {
    ASSERT_EQ(install().exitStatus, 0);
    const auto prefix = fs::path("it's the `prefix`");
    const auto program = folder.write(prefix / "bin/quelby", "");
    const auto neighbour = folder.write(prefix / "bin/other", "");
    folder.write(prefix / "lib/quelby/quelby-dashboard.so", "");
    folder.write(prefix / "libexec/quelby/pwr_limiter", "");
    const auto kept = folder.write(prefix / "libexec/quelby/somebody's/file", "");
    const auto entry = folder.write(prefix / "share/applications/quelby.desktop", "");
    const auto removed = run(linuxFullUninstallScript(installedProgram(program), root));
    EXPECT_EQ(removed.exitStatus, 0);
    EXPECT_EQ(removed.errors, "");
    EXPECT_FALSE(fs::exists(program));
    EXPECT_FALSE(fs::exists(entry));
    EXPECT_FALSE(fs::exists(folder.path() / prefix / "lib/quelby"));
    EXPECT_TRUE(fs::exists(folder.path() / prefix / "lib"));
    EXPECT_FALSE(fs::exists(folder.path() / prefix / "libexec/quelby/pwr_limiter"));
    EXPECT_TRUE(fs::exists(kept));
    EXPECT_TRUE(fs::exists(neighbour));
    EXPECT_TRUE(fs::exists(resources));
    EXPECT_FALSE(fs::exists(shared));
    EXPECT_FALSE(fs::exists(executable));
    EXPECT_FALSE(fs::exists(unit));
}

TEST_F(LinuxHelperScriptsTest, SayWhereTheProgramCouldNotBeRemoved) {
    const auto folderInItsPlace = folder.write("bin/quelby/file", "").parent_path();
    EXPECT_NE(run(linuxFullUninstallScript({{folderInItsPlace}, {folder.path() / "bin"}}, root)).exitStatus,
              0);
    EXPECT_TRUE(fs::exists(folderInItsPlace / "file"));
}

} // namespace
} // namespace quelby
