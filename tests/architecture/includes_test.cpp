// The folders of src/ are floors; a file may include only from its own floor and from those below it.

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace quelby {
namespace {

namespace fs = std::filesystem;

const fs::path sources = fs::path(QUELBY_SOURCE_DIR) / "src";

// What each floor may include of the others.
const std::map<std::string, std::set<std::string>> floorsBelow{
    {"base", {}},
    {"platform", {"base"}},
    {"history", {"base", "platform"}},
    {"monitor", {"base", "platform", "history", "helper"}},
    {"helper", {"base", "platform"}},
    {"ui", {"base", "platform", "history", "helper", "monitor"}},
    {"console", {"base", "platform", "history", "helper", "monitor"}},
    {"cli", {"base", "platform", "history", "helper", "monitor", "ui", "console"}},
    {"app", {"base", "platform", "history", "helper", "monitor", "ui", "console"}},
};

// The only folders that may know of Qt.
const std::vector<std::string> foldersWithQt{"app",       "console",    "platform/qt",
                                             "ui/bridge", "ui/symbols", "ui/view"};

std::vector<fs::path> sourceFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(sources)) {
        if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp") {
            files.push_back(entry.path());
        }
    }
    return files;
}

std::vector<std::string> includesOf(const fs::path& file) {
    static const std::regex include(R"(^\s*#\s*include\s*[<"]([^>"]+)[>"])");
    std::vector<std::string> names;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        if (std::smatch match; std::regex_search(line, match, include)) {
            names.push_back(match[1]);
        }
    }
    return names;
}

std::string firstFolder(const std::string& path) {
    return path.substr(0, path.find('/'));
}

bool mayKnowQt(const std::string& file) {
    return std::any_of(foldersWithQt.begin(), foldersWithQt.end(),
                       [&](const std::string& folder) { return file.rfind(folder + '/', 0) == 0; });
}

TEST(Includes, PointDownwardsOnly) {
    const auto files = sourceFiles();
    ASSERT_GT(files.size(), 50U);
    for (const auto& path : files) {
        const auto file = path.lexically_relative(sources).generic_string();
        const auto floor = firstFolder(file);
        ASSERT_TRUE(floorsBelow.contains(floor)) << file << " stands on no known floor";
        for (const auto& include : includesOf(path)) {
            const auto target = firstFolder(include);
            if (floorsBelow.contains(target) && target != floor) {
                EXPECT_TRUE(floorsBelow.at(floor).contains(target)) << file << " includes " << include;
            }
        }
    }
}

TEST(Includes, KeepQtOutOfTheLowerFloors) {
    for (const auto& path : sourceFiles()) {
        const auto file = path.lexically_relative(sources).generic_string();
        for (const auto& include : includesOf(path)) {
            if (!mayKnowQt(file)) {
                EXPECT_NE(include.front(), 'Q') << file << " includes " << include;
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
