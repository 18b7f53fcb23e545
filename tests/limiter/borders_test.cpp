// The helper is a program of its own: it knows of the application only what it shares with it.

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace quelby::limiter {
namespace {

namespace fs = std::filesystem;

const std::set<std::string> shared{"helper/daemon_config.h", "helper/daemon_status.h",
                                   "platform/helper_names.h", "platform/posix/file_descriptor.h"};

bool isAllowed(const std::string& name) {
    return name.rfind("limiter/", 0) == 0 || name.rfind("base/", 0) == 0 || shared.contains(name);
}

TEST(Borders, OfTheHelperAreCrossedOnlyByWhatItShares) {
    static const std::regex quoted(R"re(^\s*#\s*include\s*"([^"]+)")re");
    static const std::regex pointed(R"(^\s*#\s*include\s*<([^>]+)>)");
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(QUELBY_SOURCE_DIR) / "limiter")) {
        if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") {
            continue;
        }
        ++files;
        std::ifstream stream(entry.path());
        int lines = 0;
        for (std::string line; std::getline(stream, line); ++lines) {
            std::smatch match;
            if (std::regex_search(line, match, quoted)) {
                EXPECT_TRUE(isAllowed(match[1])) << entry.path() << " includes " << match[1];
            } else if (std::regex_search(line, match, pointed)) {
                EXPECT_NE(match[1].str().front(), 'Q') << entry.path();
                EXPECT_NE(match[1].str().rfind("fmt/", 0), 0U) << entry.path();
            }
        }
        EXPECT_LE(lines, 300) << entry.path();
    }
    EXPECT_GT(files, 50);
}

} // namespace
} // namespace quelby::limiter
