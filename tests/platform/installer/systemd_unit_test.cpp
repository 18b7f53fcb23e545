#include "platform/installer/systemd_unit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/helper_names.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string withLine(const std::string& text, const std::string& beginning, const std::string& instead) {
    const auto start = text.find('\n' + beginning);
    EXPECT_NE(start, std::string::npos) << beginning;
    const auto end = text.find('\n', start + 1);
    return text.substr(0, start + 1) + instead + text.substr(end);
}

// systemd wants to see the executable where the unit says, so another one stands in for it.
ProgramResult verified(const std::string& unit) {
    const TemporaryFolder folder;
    const auto file = folder.write(linux_helper::service, withLine(unit, "ExecStart=", "ExecStart=/bin/sh"));
    return runProgram(
        {"/usr/bin/env", "systemd-analyze", "verify", "--man=no", "--recursive-errors=no", file});
}

TEST(SystemdUnit, IsAcceptedBySystemd) {
    const auto check = verified(systemdUnit());
    EXPECT_EQ(check.exitStatus, 0);
    EXPECT_THAT(check.errors, Not(HasSubstr(linux_helper::service)));
    EXPECT_NE(verified(withLine(systemdUnit(), "LockPersonality=", "LockPersonalty=yes")).exitStatus, 0);
}

TEST(SystemdUnit, StartsTheInstalledHelperAtBootAndWheneverItExits) {
    const auto unit = systemdUnit();
    EXPECT_THAT(unit, HasSubstr("\nExecStart=/usr/local/libexec/pwr_limiter\n"));
    EXPECT_THAT(unit, HasSubstr("\n[Install]\nWantedBy=multi-user.target\n"));
    EXPECT_THAT(unit, HasSubstr("\nRestart=always\n"));
    EXPECT_THAT(unit, HasSubstr("\nStartLimitIntervalSec=0\n"));
}

TEST(SystemdUnit, LeavesOnlyTheHelpersFolderAndTheBatteriesWritable) {
    const auto unit = systemdUnit();
    EXPECT_THAT(unit, HasSubstr("\nProtectSystem=strict\n"));
    EXPECT_THAT(unit, HasSubstr("\nStateDirectory=quelby\nStateDirectoryMode=0777\n"));
    EXPECT_EQ(linux_helper::folder, "/var/lib/quelby");
    EXPECT_THAT(unit, Not(HasSubstr("ReadWritePaths")));
    EXPECT_THAT(unit, Not(HasSubstr("ProtectKernelTunables"))); // would make /sys read-only
    EXPECT_THAT(unit, HasSubstr("\nCapabilityBoundingSet=\n"));
}

TEST(SystemdUnit, DoesNotEndTheHereDocumentThatCarriesIt) {
    EXPECT_THAT(systemdUnit(), Not(HasSubstr("\nUNIT\n")));
    EXPECT_EQ(systemdUnit().back(), '\n');
}

} // namespace
} // namespace quelby
