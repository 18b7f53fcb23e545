#include "platform/linux/autostart_entry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/posix/child_process.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::HasSubstr;

TEST(AutostartEntry, StartsTheProgramThatRegisteredIt) {
    const TemporaryFolder folder;
    AutostartEntry entry(folder.path() / "config", "/opt/quelby/bin/quelby");
    EXPECT_TRUE(entry.registerProgram());
    const auto text = folder.read("config/autostart/quelby.desktop");
    EXPECT_THAT(text, HasSubstr("\nExec=\"/opt/quelby/bin/quelby\" --background\n"));
    EXPECT_TRUE(entry.registerProgram());
    EXPECT_TRUE(entry.unregisterProgram());
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "config" / "autostart" / "quelby.desktop"));
    EXPECT_TRUE(entry.unregisterProgram());
}

TEST(AutostartEntry, SaysWhereItCannotBeWritten) {
    const TemporaryFolder folder;
    AutostartEntry entry(folder.write("a file", ""), "/usr/bin/quelby");
    EXPECT_FALSE(entry.registerProgram());
}

TEST(AutostartEntry, IsValidForEveryPath) {
    const TemporaryFolder folder;
    for (const auto* program : {"/usr/bin/quelby", "/home/a b/it's \"here\"/quelby",
                                "/100%/$HOME/`x`/back\\slash", "/größe/quelby", "/new\nline/quelby"}) {
        AutostartEntry entry(folder.path(), program);
        ASSERT_TRUE(entry.registerProgram());
        EXPECT_EQ(runToTheEnd({"desktop-file-validate", folder.path() / "autostart" / "quelby.desktop"}), 0)
            << program;
    }
}

TEST(AutostartEntry, QuotesAsTheSpecificationSays) {
    EXPECT_THAT(autostartText("/a b/\"q\"/$x/`y`/100%/back\\slash"),
                HasSubstr(R"(Exec="/a b/\\"q\\"/\\$x/\\`y\\`/100%%/back\\\\slash" --background)"
                          "\n"));
    EXPECT_THAT(autostartText("/new\nline"), HasSubstr("Exec=\"/new\\nline\" --background\n"));
}

} // namespace
} // namespace quelby
