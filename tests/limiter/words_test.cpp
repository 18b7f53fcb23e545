#include <gtest/gtest.h>

#include "limiter/kernel/rivals.h"
#include "limiter/support/makers.h"
#include "limiter/words/explanation.h"
#include "limiter/words/missing_interface.h"
#include "support/temporary_folder.h"

namespace quelby::limiter {
namespace {

std::string missing(const std::string& vendor, const std::string& product, const std::string& kernel) {
    return missingInterface({.vendor = vendor, .product = product, .kernel = kernel});
}

TEST(MissingInterface, NamesTheKernelThatAMakersDriverNeeds) {
    EXPECT_EQ(
        missing("Dell Inc.", "Latitude 7420", "6.1.0-13-amd64"),
        "Charge levels of this machine need Linux 6.12 or newer (its driver dell_laptop); this is Linux "
        "6.1.");
    EXPECT_EQ(missing("Framework", "Laptop (13th Gen)", "6.1.0"),
              "Charge levels of this machine need Linux 6.13 or newer (its driver cros_charge-control, with "
              "its option probe_with_fwk_charge_control=1); this is Linux 6.1.");
    EXPECT_EQ(
        missing("SAMSUNG ELECTRONICS CO., LTD.", "Galaxy Book3", "6.14.9"),
        "Charge levels of this machine need Linux 6.15 or newer (its driver samsung-galaxybook); this is "
        "Linux 6.14.");
    EXPECT_EQ(
        missing("Micro-Star International Co., Ltd.", "Modern 14", "6.3"),
        "Charge levels of this machine need Linux 6.4 or newer (its driver msi-ec); this is Linux 6.3.");
}

TEST(MissingInterface, SaysWhereTheKernelIsNewEnough) {
    EXPECT_EQ(missing("Dell Inc.", "Latitude 7420", "6.12.1"),
              "This machine's driver, dell_laptop, which Linux has since 6.12, would offer a charge level, "
              "but this "
              "kernel or firmware has none.");
    EXPECT_EQ(
        missing("TUXEDO", "InfinityBook", "6.12.1"),
        "This machine's driver, tuxedo-drivers, which does not come with the kernel, would offer a charge "
        "level, but this kernel or firmware has none.");
    EXPECT_EQ(missing("LENOVO", "ThinkPad T14", "6.1.0"),
              "This machine's driver, thinkpad_acpi, would offer a charge level, but this kernel or firmware "
              "has none.");
}

TEST(MissingInterface, IsHonestAboutMachinesThatItDoesNotKnow) {
    const std::string unknown = "Neither the firmware of this machine nor a driver of this kernel offers a "
                                "charge level that could be "
                                "set.";
    EXPECT_EQ(missing("Acme", "Book", "6.1.0"), unknown);
    EXPECT_EQ(missing("", "", ""), unknown);
    EXPECT_EQ(
        missing("Microsoft Corporation", "Surface Pro 9", "6.12"),
        "The firmware of this machine lets no operating system limit the charge; its own setup may have a "
        "switch for it.");
}

TEST(Explanation, TellsWhatHolds) {
    const MachineFacts machine;
    Situation situation{.hasBattery = true, .hasMechanism = true, .limitWanted = true, .wishedPercent = 80};
    EXPECT_EQ(explanation(situation, machine), "No limit is in force.");
    situation.inForce = {.limits = true, .percent = 80};
    EXPECT_EQ(explanation(situation, machine), "Charging stops at 80%.");
    situation.holdsByItself = false;
    EXPECT_EQ(explanation(situation, machine), "Charging stops at 80% for as long as this helper runs.");
    situation.inForce.percent = 60;
    EXPECT_EQ(explanation(situation, machine),
              "Charging stops at 60%, the nearest to 80% that this machine offers.");
    situation.wishedPercent = 100;
    situation.inForce = {.limits = false, .percent = 100};
    EXPECT_EQ(explanation(situation, machine), "The battery is charged fully.");
    situation.winner = "TLP";
    situation.inForce = {.limits = true};
    EXPECT_EQ(explanation(situation, machine),
              "The level was changed back again and again (TLP), so the firmware's own level stands.");
    situation.inForce = {};
    EXPECT_EQ(explanation(situation, machine),
              "The level was changed back again and again (TLP), so what stands cannot be told.");
}

TEST(Rivals, AreNamedWhereTheirServiceRuns) {
    OddHardware hardware;
    EXPECT_EQ(runningRivals(hardware, ""), "another program or the firmware");
    hardware["fs/cgroup/system.slice/upower.service/cgroup.procs"].text = "1";
    EXPECT_EQ(runningRivals(hardware, ""), "UPower");
    hardware["fs/cgroup/user.slice/user-1000.slice/user@1000.service/background.slice/"
             "plasma-powerdevil.service/cgroup.procs"]
        .text = "1";
    EXPECT_EQ(runningRivals(hardware, ""), "UPower or KDE's PowerDevil");
}

TEST(Rivals, AreFoundToHaveDoneTheirWorkAtBootAsWell) {
    const OddHardware hardware;
    const TemporaryFolder units;
    EXPECT_EQ(runningRivals(hardware, units.path()), "another program or the firmware");
    std::filesystem::create_symlink("0123456789abcdef", units.path() / "invocation:tlp.service");
    EXPECT_EQ(runningRivals(hardware, units.path()), "TLP");
}

} // namespace
} // namespace quelby::limiter
