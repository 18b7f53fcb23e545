#include <algorithm>
#include <set>

#include <QImage>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/program.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

std::string recording(const char* name) {
    return std::string(QUELBY_SOURCE_DIR "/resources/recordings/") + name + ".jsonl";
}

const std::string program = QUELBY_BINARY_DIR "/quelby";

class QuelbyScreenshot : public testing::Test {
protected:
    // As in a session that has no display at all.
    [[nodiscard]] ProgramResult quelby(const std::vector<std::string>& more) const {
        std::vector<std::string> words{"/usr/bin/env",    "-u", "DISPLAY",         "-u",
                                       "WAYLAND_DISPLAY", "-u", "XDG_RUNTIME_DIR", program};
        words.insert(words.end(), more.begin(), more.end());
        auto environment = plainEnvironment();
        environment["TMPDIR"] = temporaryFiles;
        environment["LC_ALL"] = language;
        environment["XDG_DATA_HOME"] = folder.path() / "data";
        return runProgram(words, environment);
    }

    // What the program draws of a recording; the file's bytes.
    [[nodiscard]] std::string drawn(const std::vector<std::string>& more = {},
                                    const char* machine = "laptop-on-battery") const {
        std::vector<std::string> words{"--screenshot", file, "--replay", recording(machine)};
        words.insert(words.end(), more.begin(), more.end());
        const auto result = quelby(words);
        EXPECT_EQ(result.exitStatus, 0);
        EXPECT_THAT(result.output, IsEmpty());
        EXPECT_THAT(result.errors, IsEmpty());
        return folder.read("picture.png");
    }

    static QImage picture(const std::string& bytes) {
        return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()),
                                "PNG");
    }

    void expectRefusal(const std::vector<std::string>& words, int exitStatus, const char* reason) const {
        const auto refused = quelby(words);
        EXPECT_EQ(refused.exitStatus, exitStatus);
        EXPECT_THAT(refused.output, IsEmpty());
        EXPECT_THAT(refused.errors, AllOf(StartsWith("quelby: "), HasSubstr(reason), EndsWith("\n")));
        EXPECT_EQ(std::count(refused.errors.begin(), refused.errors.end(), '\n'), 1) << refused.errors;
        EXPECT_FALSE(fs::exists(file));
    }

    std::string language = "C.UTF-8";
    TemporaryFolder folder;
    std::string file = folder.path() / "picture.png";
    std::string temporaryFiles = folder.write("temporary/keep", "").parent_path();
};

TEST_F(QuelbyScreenshot, IsAsLargeAsTheDashboardTimesTheScale) {
    EXPECT_EQ(picture(drawn()).size(), QSize(400, 660));
    const std::pair<const char*, QSize> sizes[] = {
        {"0.5", {200, 330}}, {"1", {400, 660}}, {"1.5", {600, 990}}, {"2", {800, 1320}}};
    for (const auto& [scale, size] : sizes) {
        EXPECT_EQ(picture(drawn({"--scale", scale})).size(), size);
    }
}

TEST_F(QuelbyScreenshot, IsTheSameEachTime) {
    const auto first = drawn({"--scale", "2"});
    EXPECT_FALSE(first.empty());
    EXPECT_EQ(first, drawn({"--scale", "2"}));
}

TEST_F(QuelbyScreenshot, IsTheSameInEveryLanguage) {
    const auto expected = drawn();
    for (const auto* const other : {"de_DE.UTF-8", "tr_TR.UTF-8", "ar_EG.UTF-8", "C"}) {
        language = other;
        EXPECT_TRUE(drawn() == expected) << other;
    }
}

TEST_F(QuelbyScreenshot, IsSharpAtEachScale) {
    const auto small = picture(drawn());
    const auto large = picture(drawn({"--scale", "2"}));
    EXPECT_NE(small.scaled(large.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation), large);
}

TEST_F(QuelbyScreenshot, IsLightUnlessItIsToBeDark) {
    const auto light = drawn({"--light"});
    EXPECT_EQ(light, drawn());
    const auto dark = drawn({"--dark"});
    EXPECT_GT(picture(light).pixelColor(3, 3).lightness(), 200);
    EXPECT_LT(picture(dark).pixelColor(3, 3).lightness(), 60);
}

TEST_F(QuelbyScreenshot, IsScrolledAsFarAsThereIsSomethingToSee) {
    const auto top = drawn();
    EXPECT_EQ(top, drawn({"--scroll", "0"}));
    const auto moved = picture(drawn({"--scroll", "100"}));
    const QRect left(0, 0, 380, 560); // beside the scroll bar
    EXPECT_EQ(moved.copy(left), picture(top).copy(left.translated(0, 100)));
    const auto end = drawn({"--scroll", "5000"});
    EXPECT_NE(end, top);
    EXPECT_EQ(end, drawn({"--scroll", "999999"}));
}

TEST_F(QuelbyScreenshot, ShowsTheSettings) {
    const auto settings = picture(drawn({"--view", "settings"}));
    EXPECT_EQ(drawn(), drawn({"--view", "dashboard"}));
    const auto cards = picture(drawn());
    EXPECT_NE(settings, cards);
    const QRect firstCard(20, 60, 360, 200);
    const auto background = settings.pixelColor(3, 3);
    EXPECT_NE(settings.copy(firstCard).pixelColor(100, 5), background); // there is a card
}

TEST_F(QuelbyScreenshot, ShowsEveryRecording) {
    std::set<std::string> pictures;
    for (const auto* machine : {"laptop-on-battery", "laptop-charging-to-full", "laptop-held-at-limit",
                                "desktop-without-battery"}) {
        pictures.insert(drawn({}, machine));
    }
    EXPECT_EQ(pictures.size(), 4U);
}

TEST_F(QuelbyScreenshot, ShowsTheHistoryOfTheRecordingsOwnCycles) {
    const auto bottom = picture(drawn({"--scroll", "700"}));
    const auto other = picture(drawn({"--scroll", "700", "--data-dir", folder.path() / "empty"}));
    EXPECT_NE(bottom, other);
}

TEST_F(QuelbyScreenshot, WritesNoHistoryButItsPicture) {
    static_cast<void>(drawn({"--data-dir", folder.path() / "named"}));
    EXPECT_FALSE(fs::exists(folder.path() / "named"));
    const auto result = quelby({"--screenshot", file});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(picture(folder.read("picture.png")).size(), QSize(400, 660));
    EXPECT_FALSE(fs::exists(folder.path() / "data"));
    EXPECT_EQ(std::distance(fs::directory_iterator(temporaryFiles), {}), 1); // what was there before
}

TEST_F(QuelbyScreenshot, LeavesTheHistoryAsItIs) {
    const auto words = std::vector<std::string>{
        program,      "--headless", "--fast", "--replay", recording("laptop-held-at-limit"),
        "--data-dir", folder.path()};
    ASSERT_EQ(runProgram(words, plainEnvironment()).exitStatus, 0);
    const auto before = folder.read("Quelby/history.db");
    static_cast<void>(drawn({"--data-dir", folder.path()}));
    EXPECT_EQ(folder.read("Quelby/history.db"), before);
}

TEST_F(QuelbyScreenshot, ReplacesTheFileAsAWholeOrNotAtAll) {
    folder.write("picture.png", "an older picture");
    EXPECT_EQ(picture(drawn()).size(), QSize(400, 660));
    folder.write("picture.png", "an older picture");
    EXPECT_EQ(quelby({"--screenshot", file, "--replay", "/nowhere"}).exitStatus, 1);
    EXPECT_EQ(folder.read("picture.png"), "an older picture");
}

TEST_F(QuelbyScreenshot, ReplacesNothingThatIsNoFile) {
    const auto pipe = folder.path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    expectRefusal({"--screenshot", pipe, "--replay", recording("laptop-on-battery")}, 1, "it is no file");
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(QuelbyScreenshot, SaysWhyThereIsNone) {
    const auto machine = recording("laptop-on-battery");
    expectRefusal({"--screenshot", "/nowhere/picture.png", "--replay", machine}, 1,
                  "cannot be written to \"/nowhere/picture.png\"");
    expectRefusal({"--screenshot", folder.path(), "--replay", machine}, 1, "cannot be written");
    expectRefusal({"--screenshot", file, "--replay", "/nowhere"}, 1, "/nowhere");
}

TEST_F(QuelbyScreenshot, RefusesWrongUsage) {
    for (const auto* scale : {"0", "0.4", "9", "-1", "nan", "inf", "two", "1,5", ""}) {
        expectRefusal({"--screenshot", file, "--scale", scale}, 2, "--scale");
    }
    for (const auto* scroll : {"-1", "down", "nan"}) {
        expectRefusal({"--screenshot", file, "--scroll", scroll}, 2, "--scroll");
    }
    expectRefusal({"--screenshot", file, "--view", "cards"}, 2, "--view");
    expectRefusal({"--screenshot", file, "--dark", "--light"}, 2, "--light");
    expectRefusal({"--screenshot", file, "--headless"}, 2, "--headless");
    expectRefusal({"--screenshot"}, 2, "--screenshot");
    const std::vector<std::vector<std::string>> ofNoPicture{
        {"--view", "settings"}, {"--scale", "2"}, {"--scroll", "5"}, {"--dark"}, {"--light"}};
    for (auto words : ofNoPicture) {
        words.emplace_back("--headless");
        expectRefusal(words, 2, "--screenshot");
    }
}

} // namespace
} // namespace quelby
