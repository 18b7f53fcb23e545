#include "platform/linux/pkexec.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/installer/linux_helper_scripts.h"
#include "platform/installer/root_program.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

const fs::path packaging = fs::path(QUELBY_SOURCE_DIR) / "packaging" / "linux" / "polkit";

TEST(Pkexec, AsksForTheShellWhereNothingOfItsOwnIsInstalled) {
    const TemporaryFolder root;
    EXPECT_THAT(pkexecWords("true", false, root.path()), ElementsAre("pkexec", "/bin/sh", "-c", "true"));
    EXPECT_THAT(pkexecWords("true", true, root.path()), ElementsAre("/bin/sh", "-c", "true"));
}

TEST(Pkexec, AsksForItsOwnProgramWhereTheActionThatNamesItIsInstalled) {
    const TemporaryFolder root;
    root.write("usr/libexec/quelby/run_as_root", rootProgram({"true", "false"}));
    EXPECT_THAT(pkexecWords("true", false, root.path()), ElementsAre("pkexec", "/bin/sh", "-c", "true"));
    root.write("usr/share/polkit-1/actions/com.quelby.limiter.policy", "");
    const auto program = (root.path() / "usr/libexec/quelby/run_as_root").string();
    EXPECT_THAT(pkexecWords("true", false, root.path()), ElementsAre("pkexec", program, "true"));
    EXPECT_THAT(pkexecWords("false", false, root.path()), ElementsAre("pkexec", program, "false"));
    EXPECT_THAT(pkexecWords("true", true, root.path()), ElementsAre("/bin/sh", "-c", "true"));
}

TEST(Pkexec, NamesTheShellForAScriptThatItsOwnProgramWouldRefuse) {
    const TemporaryFolder root;
    root.write("usr/share/polkit-1/actions/com.quelby.limiter.policy", "");
    root.write("usr/libexec/quelby/run_as_root", rootProgram({"true x", "x true"}));
    EXPECT_THAT(pkexecWords("true", false, root.path()), ElementsAre("pkexec", "/bin/sh", "-c", "true"));
}

TEST(Pkexec, NamesTheProgramThatThePackageInstalls) {
    const auto action = runProgram({"/usr/bin/env", "cat", packaging / "com.quelby.limiter.policy"}).output;
    EXPECT_THAT(action, HasSubstr("exec.path\">/usr/libexec/quelby/run_as_root<"));
    const auto valid = runProgram({"/usr/bin/env", "xmllint", "--nonet", "--noout", "--nowarning",
                                   packaging / "com.quelby.limiter.policy"});
    EXPECT_EQ(valid.exitStatus, 0) << valid.errors;
}

class RootProgram : public testing::Test {
protected:
    [[nodiscard]] ProgramResult run(const std::vector<std::string>& words) const {
        auto all = words;
        all.insert(all.begin(), {"/bin/sh", program.string()});
        return runProgram(all);
    }

    TemporaryFolder folder;
    fs::path program = folder.write("run_as_root", rootProgram({"echo one\necho 'two  *[?]'; exit 3",
                                                                linuxUninstallScript(folder.path())}));
};

TEST_F(RootProgram, RunsAScriptOfItsOwnWhole) {
    const auto ran = run({"echo one\necho 'two  *[?]'; exit 3"});
    EXPECT_EQ(ran.output, "one\ntwo  *[?]\n");
    EXPECT_EQ(ran.exitStatus, 3);
}

TEST_F(RootProgram, RunsNothingElse) {
    for (const auto* const script :
         {"echo one", "", "*", "echo one\necho 'two  xx'; exit 3", "echo one\necho 'two  *[?]'; exit 3;"}) {
        const auto ran = run({script});
        EXPECT_EQ(ran.exitStatus, 2) << script;
        EXPECT_EQ(ran.output, "") << script;
        EXPECT_NE(ran.errors, "") << script;
    }
    EXPECT_EQ(run({}).exitStatus, 2);
}

} // namespace
} // namespace quelby
