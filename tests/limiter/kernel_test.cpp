#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include "limiter/kernel/power_supplies.h"
#include "limiter/kernel/sysfs_attributes.h"
#include "limiter/mechanisms/choices.h"
#include "limiter/mechanisms/values.h"
#include "limiter/support/makers.h"
#include "support/file_size_limit.h"
#include "support/temporary_folder.h"

namespace quelby::limiter {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class SysfsAttributesTest : public testing::Test {
protected:
    TemporaryFolder root;
    std::unique_ptr<SysfsAttributes> attributes = std::move(*SysfsAttributes::open(root.path()));
};

TEST_F(SysfsAttributesTest, ReadsAndWritesWholeValues) {
    root.write("folder/level", "100\n");
    EXPECT_EQ(attributes->read("folder/level"), "100");
    EXPECT_FALSE(attributes->write("folder/level", "80"));
    EXPECT_EQ(root.read("folder/level"), "80\n"); // nothing of the longer one is left
    EXPECT_EQ(attributes->read("folder/level"), "80");
    root.write("folder/level", " \n");
    EXPECT_EQ(attributes->read("folder/level"), "");
}

TEST_F(SysfsAttributesTest, TellsWhyNot) {
    EXPECT_EQ(attributes->read("missing").error(), std::errc::no_such_file_or_directory);
    EXPECT_EQ(attributes->write("missing", "1"), std::errc::no_such_file_or_directory);
    EXPECT_FALSE(fs::exists(root.path() / "missing"));
    fs::create_directory(root.path() / "folder");
    EXPECT_EQ(attributes->read("folder").error(), std::errc::invalid_argument);
    EXPECT_TRUE(attributes->write("folder", "1"));
}

TEST_F(SysfsAttributesTest, TellsARefusalThatComesWithTheWriting) {
    const auto full = SysfsAttributes::open("/dev"); // a device is no attribute, whatever it would answer
    ASSERT_TRUE(full);
    EXPECT_EQ((*full)->write("full", "1"), std::errc::invalid_argument);
}

TEST_F(SysfsAttributesTest, TellsWhereAValueIsTakenInPartOrNotAtAll) {
    root.write("level", "100\n");
    const FileSizeLimit limit(1);
    EXPECT_EQ(attributes->write("level", "80"), std::errc::io_error);
    const FileSizeLimit none(0);
    EXPECT_EQ(attributes->write("level", "80"), std::errc::file_too_large);
}

TEST_F(SysfsAttributesTest, ReachesDevicesThroughTheKernelsOwnLinksButNoAttributeThroughAny) {
    root.write("devices/bat/level", "100");
    fs::create_directories(root.path() / "class");
    fs::create_directory_symlink("../devices/bat", root.path() / "class" / "BAT0");
    EXPECT_EQ(attributes->read("class/BAT0/level"), "100");
    fs::create_symlink("level", root.path() / "devices" / "bat" / "other");
    EXPECT_FALSE(attributes->read("class/BAT0/other"));
    EXPECT_TRUE(attributes->write("class/BAT0/other", "80"));
}

TEST_F(SysfsAttributesTest, ListsNamesInOrder) {
    root.write("folder/b", "");
    root.write("folder/a", "");
    EXPECT_THAT(attributes->names("folder"), ElementsAre("a", "b"));
    EXPECT_THAT(attributes->names("missing"), IsEmpty());
    EXPECT_TRUE(attributes->exists("folder/a"));
    EXPECT_TRUE(attributes->exists("folder"));
    EXPECT_FALSE(attributes->exists("folder/c"));
}

TEST_F(SysfsAttributesTest, NeverWaitsForAPipe) {
    ASSERT_EQ(::mkfifo((root.path() / "pipe").c_str(), 0666), 0);
    EXPECT_FALSE(attributes->read("pipe"));
    EXPECT_TRUE(attributes->write("pipe", "1"));
}

TEST(SysfsAttributes, NeedATree) {
    EXPECT_FALSE(SysfsAttributes::open("/nowhere/at/all"));
}

class PowerSuppliesTest : public testing::Test {
protected:
    [[nodiscard]] bool isFed() const { return readPowerSupplies(hardware).externalPower; }

    void addPort(const std::string& online) {
        hardware[supplies + "ucsi-source-psy-1/type"].text = "USB";
        hardware[supplies + "ucsi-source-psy-1/online"].text = online;
    }

    void set(const std::string& path, const std::string& value) { hardware[supplies + path].text = value; }

    OddHardware hardware;
};

TEST_F(PowerSuppliesTest, AreFedByAnAdapterThatIsOnline) {
    addLaptop(hardware);
    EXPECT_TRUE(isFed());
    set("AC/online", "0");
    EXPECT_FALSE(isFed());
    set("BAT0/status", "Charging"); // from an adapter that never says so
    EXPECT_TRUE(isFed());
}

TEST_F(PowerSuppliesTest, AreFedByAPortUnlessThatFeedsAPhone) {
    addBattery(hardware, "BAT0");
    addPort("1");
    EXPECT_TRUE(isFed());
    set("AC/type", "Mains");
    set("AC/online", "0");
    EXPECT_TRUE(isFed());
    set("BAT0/status", "Discharging");
    EXPECT_FALSE(isFed());
}

TEST_F(PowerSuppliesTest, TellByTheBatteryWhereThereIsNoAdapter) {
    addBattery(hardware, "BAT0");
    EXPECT_TRUE(isFed());
    set("BAT0/status", "Discharging");
    EXPECT_FALSE(isFed());
    set("BAT0/status", "Unknown");
    EXPECT_FALSE(isFed());
}

TEST_F(PowerSuppliesTest, SurviveABatteryThatVanishesBetweenTwoReadings) {
    addLaptop(hardware);
    hardware[bat0 + "capacity"].readFailure = std::errc::no_such_device;
    hardware[bat0 + "status"].readFailure = std::errc::no_such_device;
    const auto read = readPowerSupplies(hardware);
    ASSERT_EQ(read.batteries.size(), 1U);
    EXPECT_EQ(read.batteries[0].percent, std::nullopt);
    EXPECT_EQ(read.percent(), 0);
}

TEST_F(PowerSuppliesTest, CountThePercentageThemselvesWhereItIsNotTold) {
    addLaptop(hardware);
    set("BAT0/capacity", "");
    set("BAT0/charge_now", "3000000");
    set("BAT0/charge_full", "4000000");
    EXPECT_EQ(readPowerSupplies(hardware).percent(), 75);
    set("BAT0/charge_now", "5000000");
    EXPECT_EQ(readPowerSupplies(hardware).percent(), 100);
}

TEST(Choices, HaveTheActiveWordInBrackets) {
    const auto choices = readChoices("Fast [Standard] Long_Life\n");
    EXPECT_THAT(choices.words, ElementsAre("Fast", "Standard", "Long_Life"));
    EXPECT_EQ(choices.active, "Standard");
    EXPECT_EQ(readChoices("auto inhibit-charge").active, std::nullopt);
    EXPECT_EQ(readChoices("auto").active, "auto");
    EXPECT_THAT(readChoices("").words, IsEmpty());
    EXPECT_EQ(readChoices("").active, std::nullopt);
    EXPECT_EQ(asChoice("Long Life"), "Long_Life");
}

TEST(Choices, AreOpenWhereALoneWordIsNoList) {
    EXPECT_TRUE(readChoices("Fast [Standard] Long_Life").offer("Fast"));
    EXPECT_TRUE(readChoices("Fast [Standard] Long_Life").offer("Standard"));
    EXPECT_FALSE(readChoices("Fast [Standard] Long_Life").offer("Custom"));
    EXPECT_FALSE(readChoices("[Standard]").offer("Custom"));
    EXPECT_TRUE(readChoices("Standard").offer("Custom"));
    EXPECT_FALSE(readChoices("").offer("Custom"));
}

TEST(Values, AreTheNearestAndOfTwoTheLower) {
    EXPECT_EQ(nearest({60, 70, 80}, 74), 70);
    EXPECT_EQ(nearest({60, 70, 80}, 75), 70);
    EXPECT_EQ(nearest({60, 70, 80}, 76), 80);
    EXPECT_EQ(nearest({60, 70, 80}, 20), 60);
    EXPECT_EQ(nearest({60, 70, 80}, 100), 80);
}

} // namespace
} // namespace quelby::limiter
