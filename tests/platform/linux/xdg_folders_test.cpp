#include "platform/linux/xdg_folders.h"

#include <cstdlib>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace quelby {
namespace {

// A variable of the environment, as it was again afterwards.
class Variable {
public:
    Variable(const char* name, const std::optional<std::string>& value) : name_(name) {
        if (const char* const former = std::getenv(name)) {
            former_ = former;
        }
        set(value);
    }

    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

    ~Variable() { set(former_); }

private:
    void set(const std::optional<std::string>& value) const {
        if (value) {
            ::setenv(name_, value->c_str(), 1);
        } else {
            ::unsetenv(name_);
        }
    }

    const char* name_;
    std::optional<std::string> former_;
};

TEST(XdgFolders, KeepDataWhereTheVariableSays) {
    const Variable dataHome("XDG_DATA_HOME", "/somewhere/else");
    EXPECT_EQ(XdgFolders().applicationSupport(), "/somewhere/else");
}

TEST(XdgFolders, KeepSettingsWhereTheVariableSays) {
    const Variable configHome("XDG_CONFIG_HOME", "/somewhere/else");
    EXPECT_EQ(XdgFolders().configuration(), "/somewhere/else");
    const Variable home("HOME", "/home/somebody");
    const Variable unset("XDG_CONFIG_HOME", std::nullopt);
    EXPECT_EQ(XdgFolders().configuration(), "/home/somebody/.config");
}

TEST(XdgFolders, KnowTheProgram) {
    EXPECT_EQ(XdgFolders().program().filename(), "linux_tests");
}

TEST(XdgFolders, HaveNoResourcesWhereNoneAreInstalled) {
    const TemporaryFolder folder;
    const auto link = folder.path() / "exe";
    std::filesystem::create_symlink(folder.path() / "bin" / "quelby", link);
    EXPECT_EQ(XdgFolders(link).resources(), std::nullopt);
}

// The kernel then says "/opt/quelby/bin/quelby (deleted)".
TEST(XdgFolders, KnowTheProgramAlsoAfterItWasReplaced) {
    const TemporaryFolder folder;
    const auto program = folder.path() / "bin" / "quelby";
    const auto resources = folder.write("libexec/quelby/pwr_limiter", "").parent_path();
    const auto link = folder.path() / "exe";
    std::filesystem::create_symlink(program, link);
    XdgFolders folders(link);
    std::filesystem::remove(link);
    std::filesystem::create_symlink(program.string() + " (deleted)", link);
    EXPECT_EQ(folders.program(), program);
    EXPECT_EQ(folders.resources(), resources);
}

TEST(XdgFolders, PassOverAVariableThatIsEmptyOrNotAbsolute) {
    const Variable home("HOME", "/home/somebody");
    for (const auto& value :
         {std::optional<std::string>(), std::optional<std::string>(""),
          std::optional<std::string>("relative/path"), std::optional<std::string>("./data")}) {
        const Variable dataHome("XDG_DATA_HOME", value);
        EXPECT_EQ(XdgFolders().applicationSupport(), "/home/somebody/.local/share");
    }
}

TEST(XdgFolders, AskTheUserDatabaseWhereThereIsNoHome) {
    const Variable dataHome("XDG_DATA_HOME", std::nullopt);
    const Variable home("HOME", std::nullopt);
    const auto folder = XdgFolders().applicationSupport();
    EXPECT_TRUE(folder.is_absolute());
    EXPECT_EQ(folder.filename(), "share");
}

} // namespace
} // namespace quelby
