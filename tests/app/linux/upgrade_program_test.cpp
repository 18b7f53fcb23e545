// What becomes of the built program where another version of it is installed while it runs.

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "app/linux/support/tray_program.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const fs::path built = QUELBY_BINARY_DIR;
const std::string otherVersion =
    "quelby: the library with the dashboard is of version 0.9.0 and this program of ";

class UpgradedProgram : public TrayProgramTest {
protected:
    void SetUp() override {
        TrayProgramTest::SetUp();
        fs::create_directories(installed);
        installAll();
        quelby = installed / "quelby";
    }

    // As package managers do: a whole file takes the name.
    void install(const char* file, const char* name) const {
        fs::copy_file(built / file, installed / "new");
        fs::rename(installed / "new", installed / name);
    }

    void installAll() const {
        for (const auto* const file : {"quelby", "quelby-desktop.so", "quelby-dashboard.so"}) {
            install(file, file);
        }
    }

    [[nodiscard]] bool runsWhatIsInstalled() const {
        return fs::equivalent(fmt::format("/proc/{}/exe", program->process()), quelby);
    }

    fs::path installed = folder.path() / "bin";
};

TEST_F(UpgradedProgram, IsTheNewVersionOnceItsDashboardIsWanted) {
    startInTray();
    installAll();
    EXPECT_FALSE(runsWhatIsInstalled());
    pressItem({640, 5});
    static_cast<void>(opened());
    EXPECT_TRUE(runsWhatIsInstalled());
    EXPECT_THAT(program->errors(), IsEmpty());
    ASSERT_TRUE(becomes([&] { return !watcher->items.empty(); }));
    screen->type("Escape");
    EXPECT_TRUE(closed());
    expectCleanEnd();
}

TEST_F(UpgradedProgram, StaysItselfWhereItsDashboardWasOpenBefore) {
    startInTray();
    pressItem({640, 5});
    static_cast<void>(opened());
    screen->type("Escape");
    EXPECT_TRUE(closed());
    install("quelby", "quelby");
    install("other-library.so", "quelby-dashboard.so");
    pressItem({640, 5});
    static_cast<void>(opened());
    EXPECT_FALSE(runsWhatIsInstalled());
    EXPECT_THAT(program->errors(), IsEmpty());
    expectCleanEnd();
}

TEST_F(UpgradedProgram, UsesNoLibraryOfAnotherVersion) {
    install("other-library.so", "quelby-dashboard.so");
    startInTray();
    pressItem({640, 5});
    EXPECT_TRUE(becomes([&] { return !program->errors().empty(); }));
    EXPECT_THAT(program->errors(), HasSubstr(otherVersion));
    EXPECT_THAT(screen->windows(), IsEmpty());
    expectCleanEnd();
}

TEST_F(UpgradedProgram, GoesOnInTheTrayWhereItWasRemoved) {
    startInTray();
    fs::remove_all(installed);
    pressItem({640, 5});
    EXPECT_TRUE(becomes([&] { return !program->errors().empty(); }));
    EXPECT_EQ(program->errors(), "quelby: the library with the dashboard is missing\n");
    expectCleanEnd();
}

TEST_F(UpgradedProgram, OpensAtItsItemWhereItIsAskedToAtItsStart) {
    watcher.emplace("lxqt-panel");
    start({"--background", "--show"});
    EXPECT_FALSE(screen->hasFrame(opened()));
    EXPECT_THAT(watcher->items, SizeIs(1));
    expectCleanEnd();
}

} // namespace
} // namespace quelby
