#include "platform/linux/battery/attribute_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "platform/linux/battery/fake_sysfs.h"

namespace quelby {
namespace {

using namespace std::string_literals;

class AttributeFolders : public testing::Test {
protected:
    AttributeFolders() { sysfs.plug("BAT0", {}); }

    [[nodiscard]] AttributeFolder folder() const { return AttributeFolder(sysfs.folderOf("BAT0")); }

    std::optional<std::string> wordOf(const std::string& bytes) {
        sysfs.write("BAT0", "attribute", bytes);
        return folder().word("attribute");
    }

    std::optional<std::int64_t> numberOf(const std::string& bytes) {
        sysfs.write("BAT0", "attribute", bytes);
        return folder().number("attribute");
    }

    fake::Sysfs sysfs;
};

TEST_F(AttributeFolders, AWordComesInSmallLettersWithoutPadding) {
    EXPECT_EQ(wordOf("Not charging\n"), "not charging");
    EXPECT_EQ(wordOf("Discharging  \n"), "discharging");
    EXPECT_EQ(wordOf("\t FULL\r\n"), "full");
    EXPECT_EQ(wordOf("Full"), "full");
    EXPECT_EQ(wordOf("Full\0\0\n"s), "full");
    EXPECT_EQ(wordOf("Fu\0ll\n"s), "fu\0ll"s);
}

TEST_F(AttributeFolders, ANumberIsAWholeNumberInFull) {
    EXPECT_EQ(numberOf("12345\n"), 12345);
    EXPECT_EQ(numberOf("-402000\r\n"), -402000);
    EXPECT_EQ(numberOf("+5"), 5);
    EXPECT_EQ(numberOf("  7 "), 7);
    EXPECT_EQ(numberOf("0\n"), 0);
    for (const auto& bytes :
         {"5.0\n"s, "0x10\n"s, "5 mA\n"s, "18446744073709551615\n"s, "5\0006\n"s, "N/A\n"s}) {
        EXPECT_EQ(numberOf(bytes), std::nullopt) << bytes;
    }
}

TEST_F(AttributeFolders, NothingIsReadFromWhatHoldsNothing) {
    EXPECT_EQ(wordOf(""), std::nullopt);
    EXPECT_EQ(wordOf(" \r\n\0"s), std::nullopt);
    EXPECT_EQ(folder().word("missing"), std::nullopt);
}

TEST_F(AttributeFolders, NothingIsReadFromWhatIsLongerThanAnAttributeCanBe) {
    EXPECT_EQ(numberOf("55\n" + std::string(4000, ' ')), 55);
    EXPECT_EQ(numberOf("55\n" + std::string(5'000'000, ' ')), std::nullopt);
    EXPECT_EQ(wordOf(std::string(5'000'000, 'x')), std::nullopt);
}

TEST_F(AttributeFolders, AFailingReadIsNothing) {
    sysfs.makeUnreadable("BAT0", "attribute");
    EXPECT_EQ(folder().word("attribute"), std::nullopt);
}

TEST_F(AttributeFolders, APipeIsNothingAndDoesNotBlock) {
    ASSERT_EQ(::mkfifo((sysfs.folderOf("BAT0") / "attribute").c_str(), 0600), 0);
    EXPECT_EQ(folder().word("attribute"), std::nullopt);
}

TEST_F(AttributeFolders, OnlyAFolderIsOpen) {
    EXPECT_TRUE(folder().isOpen());
    sysfs.write("BAT0", "attribute", "1\n");
    for (const auto* name : {"attribute", "missing"}) {
        const AttributeFolder other(sysfs.folderOf("BAT0") / name);
        EXPECT_FALSE(other.isOpen()) << name;
        EXPECT_EQ(other.word("attribute"), std::nullopt);
    }
}

TEST_F(AttributeFolders, AnAttributeOfAFolderThatWasRemovedIsNothing) {
    sysfs.write("BAT0", "attribute", "1\n");
    const auto open = folder();
    sysfs.unplug("BAT0");
    EXPECT_EQ(open.number("attribute"), std::nullopt);
}

} // namespace
} // namespace quelby
