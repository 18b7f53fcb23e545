// The layout only lays out: what is said, and what a figure means, is decided in C++, where it is tested.
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace quelby {
namespace {

namespace fs = std::filesystem;

struct Line {
    std::string place; // file and number
    std::string code;  // without its comment
};

std::vector<Line> linesOf(const fs::path& file) {
    static const std::regex comment(R"(//.*$)");
    std::vector<Line> lines;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back({file.filename().string() + ':' + std::to_string(lines.size() + 1),
                         std::regex_replace(line, comment, "")});
    }
    return lines;
}

std::vector<Line> everyLine() {
    std::vector<Line> lines;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(QUELBY_SOURCE_DIR) / "src/ui/qml")) {
        if (entry.path().extension() == ".qml") {
            const auto more = linesOf(entry.path());
            lines.insert(lines.end(), more.begin(), more.end());
        }
    }
    return lines;
}

TEST(QmlRules, SeeEveryFile) {
    EXPECT_GT(everyLine().size(), 1000U);
}

TEST(QmlRules, NoFileFormatsAFigure) {
    static const std::regex format(
        R"(toFixed|toPrecision|toLocale|toString|Number\(|parseFloat|parseInt|\.arg\(|qsTr|Qt\.format|`|Date\b)");
    for (const auto& line : everyLine()) {
        EXPECT_FALSE(std::regex_search(line.code, format)) << line.place << ": " << line.code;
    }
}

TEST(QmlRules, NoFileJoinsTexts) {
    static const std::regex join(R"([+]\s*"|"\s*[+])");
    for (const auto& line : everyLine()) {
        EXPECT_FALSE(std::regex_search(line.code, join)) << line.place << ": " << line.code;
    }
}

TEST(QmlRules, NoFileSpeaks) {
    static const std::regex words(R"("[^"]*[ A-Z][^"]*")");
    static const std::regex nameOfAThing(R"(property: ")"); // of C++, which is spelt as there
    for (const auto& line : everyLine()) {
        if (line.place.rfind("Theme.qml", 0) != 0 && !std::regex_search(line.code, nameOfAThing)) {
            EXPECT_FALSE(std::regex_search(line.code, words)) << line.place << ": " << line.code;
        }
    }
}

TEST(QmlRules, NoFileButTheThemeMakesAColour) {
    static const std::regex color(
        R"("#[0-9a-fA-F]+"|[cC]olor: "(?!transparent)|Qt\.(rgba|hsla|hsva|darker|lighter|tint|alpha))");
    static const std::regex opacity(R"(translucent\([^,]*, [0-9]|opacity:.*\b0\.[0-9])");
    for (const auto& line : everyLine()) {
        if (line.place.rfind("Theme.qml", 0) != 0) {
            EXPECT_FALSE(std::regex_search(line.code, color)) << line.place << ": " << line.code;
            EXPECT_FALSE(std::regex_search(line.code, opacity)) << line.place << ": " << line.code;
        }
    }
}

// Numbers that are compared with are thresholds, unless they count what there is or measure what is drawn.
TEST(QmlRules, NoFileDecidesByANumber) {
    static const std::regex comparison(R"(([\w.]+)\s*(?:[<>]=?|[!=]==?)\s*-?\d)");
    static const std::regex harmless(R"((?:.*\.)?(?:index|length|width|size|hoverIndex|a))");
    for (const auto& line : everyLine()) {
        for (std::sregex_iterator found(line.code.begin(), line.code.end(), comparison), end; found != end;
             ++found) {
            EXPECT_TRUE(std::regex_match((*found)[1].str(), harmless)) << line.place << ": " << line.code;
        }
    }
}

} // namespace
} // namespace quelby
