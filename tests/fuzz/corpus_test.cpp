// What is kept of the fuzzers' inputs, among it all that once went wrong.

#include <filesystem>
#include <fstream>
#include <iterator>

#include <QGuiApplication>
#include <gtest/gtest.h>

#include "fuzz/targets/target.h"

namespace quelby::fuzz {
namespace {

namespace fs = std::filesystem;

const fs::path corpus = fs::path(QUELBY_SOURCE_DIR) / "tests/fuzz/corpus";

class Corpus : public testing::TestWithParam<Target> {};

TEST_P(Corpus, IsTakenWhole) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    char name[] = "corpus";
    char* argv[] = {name, nullptr};
    const QGuiApplication application(argc, argv);
    int taken = 0;
    for (const auto& entry : fs::directory_iterator(corpus / GetParam().name)) {
        SCOPED_TRACE(entry.path().filename().native());
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        GetParam().take(bytes);
        GetParam().take(std::string_view(bytes).substr(0, bytes.size() / 2)); // as if it had been cut off
        ++taken;
    }
    EXPECT_GE(taken, 3);
}

INSTANTIATE_TEST_SUITE_P(Of, Corpus, testing::ValuesIn(targets),
                         [](const auto& target) { return std::string(target.param.name); });

TEST(CorpusFolders, AreThoseOfTheTargets) {
    for (const auto& entry : fs::directory_iterator(corpus)) {
        const auto name = entry.path().filename().native();
        EXPECT_TRUE(std::any_of(std::begin(targets), std::end(targets), [&](const Target& target) {
            return target.name == name;
        })) << name;
    }
}

} // namespace
} // namespace quelby::fuzz
