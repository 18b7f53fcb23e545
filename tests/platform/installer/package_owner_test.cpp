#include "platform/installer/package_owner.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace quelby {
namespace {

class PackageOwnerTest : public testing::Test {
protected:
    [[nodiscard]] std::optional<PackageManager> ownerOf(const char* program) const {
        return packageOwner(folder.path() / program, folder.path());
    }

    void makeFolder(const char* name) const { std::filesystem::create_directories(folder.path() / name); }

    TemporaryFolder folder;
};

TEST_F(PackageOwnerTest, IsNobodyWhereNoManagerKnowsTheProgram) {
    EXPECT_EQ(ownerOf("usr/bin/quelby"), std::nullopt);
    EXPECT_EQ(ownerOf("home/somebody/.local/bin/quelby"), std::nullopt);
}

TEST_F(PackageOwnerTest, IsAptWhereThePackageListsTheProgram) {
    folder.write("var/lib/dpkg/info/quelby.list", "/.\n/usr\n/usr/bin\n/usr/bin/quelby\n");
    EXPECT_EQ(ownerOf("usr/bin/quelby"), PackageManager::apt);
    EXPECT_EQ(ownerOf("usr/local/bin/quelby"), std::nullopt); // another copy
    EXPECT_EQ(ownerOf("bin/quelby"), std::nullopt);
}

TEST_F(PackageOwnerTest, IsNobodyForAProgramThatWasCopiedBesidePackages) {
    folder.write("var/lib/dpkg/info/other.list", "/usr/bin/quelby\n");
    makeFolder("var/lib/rpm"); // Debian has the other manager's program as well
    EXPECT_EQ(ownerOf("usr/bin/quelby"), std::nullopt);
}

TEST_F(PackageOwnerTest, IsPacmanWhereThePackageListsTheProgram) {
    folder.write("var/lib/pacman/local/quelby-1.0.0-1/files", "%FILES%\nusr/\nusr/bin/\nusr/bin/quelby\n");
    folder.write("var/lib/pacman/local/other-1.0.0-1/files", "%FILES%\nusr/local/bin/quelby\n");
    EXPECT_EQ(ownerOf("usr/bin/quelby"), PackageManager::pacman);
    EXPECT_EQ(ownerOf("usr/local/bin/quelby"), std::nullopt);
}

TEST_F(PackageOwnerTest, IsRpmOnItsSystemsWhereProgramsOfPackagesLie) {
    for (const auto* const database : {"usr/lib/sysimage/rpm", "var/lib/rpm"}) {
        makeFolder(database);
        EXPECT_EQ(ownerOf("usr/bin/quelby"), PackageManager::rpm) << database;
        EXPECT_EQ(ownerOf("usr/local/bin/quelby"), std::nullopt);
        EXPECT_EQ(ownerOf("opt/quelby/bin/quelby"), std::nullopt);
        std::filesystem::remove_all(folder.path() / database);
    }
}

} // namespace
} // namespace quelby
