#include "platform/installer/systemd_unit.h"

#include <iostream>

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
std::string runnable(const std::string& unit) {
    return withLine(withLine(unit, "ExecStart=", "ExecStart=/bin/sh"),
                    "ExecStopPost=", "ExecStopPost=/bin/sh");
}

ProgramResult verified(const std::string& unit) {
    const TemporaryFolder folder;
    const auto file = folder.write(linux_helper::service, runnable(unit));
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

TEST(SystemdUnit, ReleasesChargingAfterAnyEnd) {
    EXPECT_THAT(systemdUnit(), HasSubstr("\nExecStopPost=/usr/local/libexec/pwr_limiter --release\n"));
}

// What keeps it from less: the helper is root (0.4), /sys has to be writable (0.2), it listens to the kernel
// and speaks to the service manager (0.2), it sees the host's root folder (0.1), and ProtectClock lets it read
// the clock's device (0.1).
TEST(SystemdUnit, IsExposedAsLittleAsItsTaskAllows) {
    const TemporaryFolder folder;
    const auto file = folder.write(linux_helper::service, runnable(systemdUnit()));
    const auto checked = runProgram({"/usr/bin/env", "systemd-analyze", "security", "--offline=true",
                                     "--no-pager", "--threshold=10", file}); // tenths
    EXPECT_EQ(checked.exitStatus, 0) << checked.output << checked.errors;
    const auto verdict = checked.output.find("Overall exposure level");
    ASSERT_NE(verdict, std::string::npos);
    std::cout << checked.output.substr(verdict);
}

TEST(SystemdUnit, LeavesOnlyTheHelpersFolderAndTheBatteriesWritable) {
    const auto unit = systemdUnit();
    EXPECT_THAT(unit, HasSubstr("\nProtectSystem=strict\n"));
    EXPECT_THAT(unit, HasSubstr("\nStateDirectory=quelby quelby-limiter\nStateDirectoryMode=0700\n"));
    EXPECT_EQ(linux_helper::folder, "/var/lib/quelby");
    EXPECT_EQ(linux_helper::stateFolder, "/var/lib/quelby-limiter");
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
