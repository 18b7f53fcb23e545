// The folders of src/ stand upon one another; a file may include only from its own folder and from those below it.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace quelby {
namespace {

namespace fs = std::filesystem;

const fs::path sources = fs::path(QUELBY_SOURCE_DIR) / "src";

enum class Qt { without, with };

struct Folder {
    std::string name;
    std::vector<std::string> standsUpon; // it may include these, and whatever they stand upon
    Qt qt = Qt::without;
};

// Every folder with sources, from the ground up.
const std::vector<Folder> folders{
    {"base", {}},
    {"platform", {"base"}},
    {"platform/posix", {"platform"}},
    {"platform/installer", {"platform/posix"}},
    {"platform/qt", {"platform"}, Qt::with},
    {"platform/replay", {"platform/posix"}},
    {"platform/linux/battery", {"platform/posix"}},
    {"platform/linux/processes", {"platform/posix"}},
    {"platform/linux",
     {"platform/installer", "platform/linux/battery", "platform/linux/processes", "platform/qt"}},
    {"platform/macos", {"platform/installer"}},
    {"platform/host", {"platform/qt", "platform/replay"}},
    {"helper", {"platform"}},
    {"history/sqlite", {}},
    {"history", {"history/sqlite", "platform"}},
    {"history/energy", {"history"}},
    {"monitor", {"helper", "history/energy"}},
    {"ui/presentation/elements", {"monitor"}},
    {"ui/presentation/text", {"monitor"}},
    {"ui/presentation/cards", {"ui/presentation/elements", "ui/presentation/text"}},
    {"ui/presentation/charts", {"ui/presentation/elements"}},
    {"ui/presentation/energy", {"ui/presentation/cards", "ui/presentation/charts"}},
    {"ui/presentation", {"ui/presentation/energy"}},
    {"ui/symbols", {}, Qt::with},
    {"ui/bridge", {"ui/presentation", "ui/presentation/charts", "ui/symbols"}, Qt::with},
    {"ui/view", {"ui/bridge"}, Qt::with},
    {"console", {"monitor", "platform/host"}, Qt::with},
    {"cli/arguments", {"console", "ui/presentation"}},
    {"cli/terminal/layout", {"ui/presentation", "ui/presentation/charts"}},
    {"cli/terminal/device", {"console", "cli/terminal/layout"}},
    {"cli/output", {"cli/arguments", "cli/terminal/layout"}},
    {"cli/commands", {"cli/output", "cli/terminal/device"}},
    {"cli", {"cli/commands"}},
    {"app", {"console", "ui/view"}, Qt::with},
    {"app/linux/session", {"app"}, Qt::with},
    {"app/linux/tray", {"app/linux/session"}, Qt::with},
    {"app/linux/popover", {"app/linux/session"}, Qt::with},
    {"app/linux", {"app/linux/tray", "app/linux/popover"}, Qt::with},
    {"app/macos", {"app", "platform/macos"}, Qt::with},
};

const Folder* folderNamed(const std::string& name) {
    const auto found = std::find_if(folders.begin(), folders.end(),
                                    [&](const Folder& folder) { return folder.name == name; });
    return found == folders.end() ? nullptr : &*found;
}

bool standsUpon(const Folder& folder, const std::string& other) {
    return std::any_of(folder.standsUpon.begin(), folder.standsUpon.end(), [&](const std::string& name) {
        const auto* const below = folderNamed(name);
        return name == other || (below != nullptr && standsUpon(*below, other));
    });
}

std::vector<fs::path> sourceFiles() {
    static const std::set<std::string> kinds{".h", ".cpp", ".mm"};
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(sources)) {
        if (kinds.contains(entry.path().extension().string())) {
            files.push_back(entry.path());
        }
    }
    return files;
}

std::string placeOf(const fs::path& path) {
    return path.lexically_relative(sources).generic_string();
}

std::vector<std::string> includesOf(const fs::path& file) {
    static const std::regex include(R"(^\s*#\s*(?:include|import)\s*[<"]([^>"]+)[>"])");
    std::vector<std::string> names;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        if (std::smatch match; std::regex_search(line, match, include)) {
            names.push_back(match[1]);
        }
    }
    return names;
}

TEST(Folders, StandOnlyUponThoseThatAreNamedBefore) {
    std::set<std::string> before;
    for (const auto& folder : folders) {
        EXPECT_TRUE(fs::is_directory(sources / folder.name)) << folder.name << " is not there";
        for (const auto& name : folder.standsUpon) {
            EXPECT_TRUE(before.contains(name)) << folder.name << " stands upon " << name;
        }
        EXPECT_TRUE(before.insert(folder.name).second) << folder.name << " is named twice";
    }
}

TEST(Includes, PointDownwardsOnly) {
    const auto files = sourceFiles();
    ASSERT_GT(files.size(), 50U);
    for (const auto& file : files) {
        const auto* const folder = folderNamed(placeOf(file.parent_path()));
        ASSERT_NE(folder, nullptr) << placeOf(file) << " stands in no known folder";
        for (const auto& include : includesOf(file)) {
            const auto target = fs::path(include).parent_path().generic_string();
            if (folderNamed(target) != nullptr && target != folder->name) {
                EXPECT_TRUE(standsUpon(*folder, target)) << placeOf(file) << " includes " << include;
            }
        }
    }
}

TEST(Includes, KeepQtOutOfTheLowerFloors) {
    for (const auto& file : sourceFiles()) {
        const auto* const folder = folderNamed(placeOf(file.parent_path()));
        for (const auto& include : includesOf(file)) {
            if (folder == nullptr || folder->qt == Qt::without) {
                EXPECT_NE(include.front(), 'Q') << placeOf(file) << " includes " << include;
            }
        }
    }
}

TEST(Includes, ChooseASystemByTheBuildAndNotByThePreprocessor) {
    static const std::regex systemMacro(
        R"(^\s*#\s*(if|ifdef|ifndef|elif).*(__linux__|__APPLE__|Q_OS_|_WIN32))");
    for (const auto& path : sourceFiles()) {
        std::ifstream stream(path);
        for (std::string line; std::getline(stream, line);) {
            EXPECT_FALSE(std::regex_search(line, systemMacro)) << path << ": " << line;
        }
    }
}

} // namespace
} // namespace quelby
