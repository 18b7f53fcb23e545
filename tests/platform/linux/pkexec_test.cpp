#include "platform/linux/pkexec.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

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
    root.write("usr/libexec/quelby/run_as_root", "");
    EXPECT_THAT(pkexecWords("true", false, root.path()), ElementsAre("pkexec", "/bin/sh", "-c", "true"));
    root.write("usr/share/polkit-1/actions/com.quelby.limiter.policy", "");
    EXPECT_THAT(pkexecWords("true", false, root.path()),
                ElementsAre("pkexec", (root.path() / "usr/libexec/quelby/run_as_root").string(), "true"));
    EXPECT_THAT(pkexecWords("true", true, root.path()), ElementsAre("/bin/sh", "-c", "true"));
}

TEST(Pkexec, NamesTheProgramThatThePackageInstalls) {
    const auto action = runProgram({"/usr/bin/env", "cat", packaging / "com.quelby.limiter.policy"}).output;
    EXPECT_THAT(action, HasSubstr("exec.path\">/usr/libexec/quelby/run_as_root<"));
    const auto valid = runProgram({"/usr/bin/env", "xmllint", "--nonet", "--noout", "--nowarning",
                                   packaging / "com.quelby.limiter.policy"});
    EXPECT_EQ(valid.exitStatus, 0) << valid.errors;
}

TEST(Pkexec, HasItsProgramRunOneScriptWhole) {
    const auto ran = runProgram({packaging / "run_as_root", "echo one\necho 'two  words'; exit 3"});
    EXPECT_EQ(ran.output, "one\ntwo  words\n");
    EXPECT_EQ(ran.exitStatus, 3);
}

} // namespace
} // namespace quelby
