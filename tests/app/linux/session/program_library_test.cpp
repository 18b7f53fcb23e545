// What the built program does where one of its libraries is not as it should be.

#include <filesystem>

#include <gmock/gmock.h>

#include "support/program.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::StartsWith;

class ProgramLibrary : public testing::Test {
protected:
    void SetUp() override {
        for (const auto* const file : {"quelby", "quelby-desktop.so", "quelby-dashboard.so"}) {
            install(file, file);
        }
    }

    void install(const char* file, const char* name) const {
        fs::copy_file(fs::path(QUELBY_BINARY_DIR) / file, folder.path() / name,
                      fs::copy_options::overwrite_existing);
    }

    [[nodiscard]] ProgramResult drawn() const {
        auto environment = plainEnvironment();
        environment["HOME"] = folder.path();
        return runProgram({folder.path() / "quelby", "--screenshot", picture, "--replay", recording},
                          environment);
    }

    void expectNoPicture(const std::string& reason) const {
        const auto result = drawn();
        EXPECT_EQ(result.exitStatus, 1);
        EXPECT_THAT(result.errors, StartsWith("quelby: " + reason));
        EXPECT_FALSE(fs::exists(picture));
    }

    TemporaryFolder folder;
    std::string recording = QUELBY_SOURCE_DIR "/resources/recordings/laptop-on-battery.jsonl";
    fs::path picture = folder.path() / "it.png";
};

TEST_F(ProgramLibrary, IsFoundBesideTheProgramAndBelowLib) {
    EXPECT_EQ(drawn().exitStatus, 0);
    fs::create_directories(folder.path() / "bin");
    fs::create_directories(folder.path() / "lib/quelby");
    fs::rename(folder.path() / "quelby", folder.path() / "bin/quelby");
    for (const auto* const file : {"quelby-desktop.so", "quelby-dashboard.so"}) {
        fs::rename(folder.path() / file, folder.path() / "lib/quelby" / file);
    }
    fs::create_symlink("bin/quelby", folder.path() / "quelby");
    fs::remove(picture);
    const auto result = drawn();
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(fs::exists(picture));
}

TEST_F(ProgramLibrary, ThatIsMissingIsNamed) {
    fs::remove(folder.path() / "quelby-dashboard.so");
    expectNoPicture("the library with the dashboard is missing\n");
    fs::remove(folder.path() / "quelby-desktop.so");
    expectNoPicture("the library for desktops is missing\n");
}

TEST_F(ProgramLibrary, OfAnotherVersionIsNotUsed) {
    install("other-library.so", "quelby-dashboard.so");
    expectNoPicture("the library with the dashboard is of version 0.9.0 and this program of ");
    install("other-library.so", "quelby-desktop.so");
    expectNoPicture("the library for desktops is of version 0.9.0 and this program of ");
}

TEST_F(ProgramLibrary, ThatTheSystemCannotLoadIsToldWithItsReason) {
    folder.write("quelby-desktop.so", "no library");
    expectNoPicture("the library for desktops cannot be loaded: " +
                    (folder.path() / "quelby-desktop.so").string());
}

TEST_F(ProgramLibrary, ThatIsAnotherOneIsDamaged) {
    install("quelby-dashboard.so", "quelby-desktop.so");
    expectNoPicture("the library for desktops is damaged\n");
}

TEST_F(ProgramLibrary, IsNotNeededToRecord) {
    for (const auto* const file : {"quelby-desktop.so", "quelby-dashboard.so"}) {
        fs::remove(folder.path() / file);
    }
    const auto result = runProgram({folder.path() / "quelby", "--headless", "--fast", "--data-dir",
                                    folder.path(), "--replay", recording},
                                   plainEnvironment());
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.output, HasSubstr("discharging"));
}

} // namespace
} // namespace quelby
