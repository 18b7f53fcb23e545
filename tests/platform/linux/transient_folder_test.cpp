#include "platform/host/transient_folder.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby {
namespace {

namespace fs = std::filesystem;

TEST(TransientFolder, HasANameThatNobodyCanGuess) {
    const TransientFolder one;
    const TransientFolder other;
    EXPECT_NE(one.path(), other.path());
    EXPECT_THAT(one.path().filename().native(), testing::MatchesRegex("quelby-[0-9a-f]{16}"));
}

TEST(TransientFolder, IsMadeByWhoeverWritesAndGoesWithItsObject) {
    fs::path path;
    {
        const TransientFolder folder;
        path = folder.path();
        EXPECT_FALSE(fs::exists(path));
        fs::create_directories(path / "below");
        std::ofstream(path / "below/file") << "text";
    }
    EXPECT_FALSE(fs::exists(path));
}

} // namespace
} // namespace quelby
