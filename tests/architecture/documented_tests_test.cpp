// Where a page says which test holds an attack off, or shows what becomes of a fault, there is such a test.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace quelby {
namespace {

namespace fs = std::filesystem;

const fs::path root = QUELBY_SOURCE_DIR;

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

// As in "FolderTest.FollowsNoLinkWhenItReads".
std::set<std::string> allTests() {
    static const std::regex test(R"(\bTEST(?:_F|_P)?\((\w+),\s*(\w+)\))");
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(root / "tests")) {
        if (entry.path().extension() == ".cpp") {
            const auto content = contentOf(entry.path());
            for (auto found = std::sregex_iterator(content.begin(), content.end(), test);
                 found != std::sregex_iterator(); ++found) {
                names.insert((*found)[1].str() + '.' + (*found)[2].str());
            }
        }
    }
    return names;
}

// What stands in the last column of the page's table, each within its own quotes and cut off where a "…" is.
std::set<std::string> namedTests(const fs::path& page) {
    static const std::regex mark(R"(`([A-Z][\w.]*)(?:…[^`]*)?`)");
    std::set<std::string> names;
    std::ifstream lines(page);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("| ") || std::count(line.begin(), line.end(), '|') != 4) {
            continue; // no row of what may happen, what becomes of it, and the test
        }
        const auto column = line.substr(line.rfind('|', line.size() - 2));
        for (auto found = std::sregex_iterator(column.begin(), column.end(), mark);
             found != std::sregex_iterator(); ++found) {
            names.insert((*found)[1].str());
        }
    }
    return names;
}

TEST(DocumentedTests, AreThere) {
    const auto tests = allTests();
    for (const auto* const page : {"docs/faults.md", "docs/security.md", "limiter/README.md"}) {
        const auto named = namedTests(root / page);
        EXPECT_GE(named.size(), 10U) << page;
        for (const auto& name : named) {
            EXPECT_TRUE(std::any_of(tests.begin(), tests.end(),
                                    [&](const std::string& test) { return test.starts_with(name); }))
                << page << " names " << name;
        }
    }
}

} // namespace
} // namespace quelby
