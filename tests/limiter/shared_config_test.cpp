#include "limiter/files/shared_config.h"

#include <atomic>
#include <thread>

#include <gtest/gtest.h>

#include "platform/posix/shared_file.h"
#include "support/temporary_folder.h"

namespace quelby::limiter {
namespace {

class SharedConfigTest : public testing::Test {
protected:
    void write(const DaemonConfig& wish) const { outer.write("config.json", encode(wish).value()); }

    [[nodiscard]] std::optional<DaemonConfig> written() const {
        return decodeDaemonConfig(outer.read("config.json"));
    }

    TemporaryFolder outer;
    Folder folder = *Folder::openShared(outer.path());
    SharedConfig config;
};

const DaemonConfig limitOn{.chargeLimitEnabled = true, .chargeLimitPercent = 75};

TEST_F(SharedConfigTest, KeepsTheLastThatCouldBeUnderstood) {
    config.read(folder);
    EXPECT_EQ(config.last(), std::nullopt);
    write(limitOn);
    config.read(folder);
    EXPECT_EQ(config.last(), limitOn);
    for (const char* const rotten : {"", "{", "[]", "{}", R"({"chargeLimitEnabled":true})"}) {
        outer.write("config.json", rotten);
        config.read(folder);
        EXPECT_EQ(config.last(), limitOn) << rotten;
    }
    std::filesystem::remove(outer.path() / "config.json");
    config.read(folder);
    EXPECT_EQ(config.last(), limitOn);
}

TEST_F(SharedConfigTest, PutsTheTrueTimeInAndLeavesTheSettings) {
    write(limitOn);
    config.read(folder);
    config.correct(folder, 1'700'000'000);
    auto corrected = limitOn;
    corrected.lastCalibrationTimestamp = 1'700'000'000;
    EXPECT_EQ(written(), corrected);
    EXPECT_EQ(config.last(), corrected);
    EXPECT_EQ(static_cast<unsigned>(std::filesystem::status(outer.path() / "config.json").permissions()),
              0666U);
}

TEST_F(SharedConfigTest, LeavesWhatOtherProgramsKeepInTheFile) {
    outer.write("config.json",
                R"({"note":{"by":"me"},"chargeLimitEnabled":true,"chargeLimitPercent":75,)"
                R"("calibrationEnabled":false,"calibrationIntervalDays":30,"lastCalibrationTimestamp":0})");
    config.read(folder);
    config.correct(folder, 1'700'000'000);
    EXPECT_EQ(outer.read("config.json"),
              R"({"chargeLimitEnabled":true,"chargeLimitPercent":75,"calibrationEnabled":false,)"
              R"("calibrationIntervalDays":30,"lastCalibrationTimestamp":1700000000,"note":{"by":"me"}})");
}

TEST_F(SharedConfigTest, WritesNothingWhereTheTimeIsTrue) {
    write(limitOn);
    config.read(folder);
    const auto before = std::filesystem::last_write_time(outer.path() / "config.json");
    config.correct(folder, 0);
    EXPECT_EQ(std::filesystem::last_write_time(outer.path() / "config.json"), before);
    config = SharedConfig();
    config.correct(folder, 1'700'000'000); // nothing was ever read
    EXPECT_EQ(written(), limitOn);
}

TEST_F(SharedConfigTest, LosesNoSettingThatWasWrittenSinceItRead) {
    write(limitOn);
    config.read(folder);
    auto later = limitOn;
    later.chargeLimitPercent = 60;
    write(later);
    config.correct(folder, 1'700'000'000);
    later.lastCalibrationTimestamp = 1'700'000'000;
    EXPECT_EQ(written(), later);
    EXPECT_EQ(config.last(), later);
}

TEST_F(SharedConfigTest, CorrectsAHalfWrittenFileByWhatWasReadBefore) {
    write(limitOn);
    config.read(folder);
    outer.write("config.json", R"({"chargeLimitEnabled":tr)");
    config.correct(folder, 1'700'000'000);
    EXPECT_EQ(written()->chargeLimitPercent, 75);
}

// An application that changes a setting two hundred times and always writes its own old time, as its contract
// says, beside a helper that corrects the time whenever it can.
TEST_F(SharedConfigTest, LosesNoSettingToItsCorrectionsWhoeverComesFirst) {
    write(limitOn);
    std::atomic<bool> isDone = false;
    std::thread application([&] {
        for (std::int64_t percent = 0; percent < 200; ++percent) {
            auto wish = limitOn;
            wish.chargeLimitPercent = percent;
            EXPECT_TRUE(writeSharedFile(outer.path() / "config.json", encode(wish).value()));
        }
        isDone = true;
    });
    double time = 1'700'000'000;
    while (!isDone) {
        config.read(folder);
        config.correct(folder, ++time);
    }
    application.join();
    config.read(folder);
    EXPECT_EQ(config.last()->chargeLimitPercent, 199);
    config.correct(folder, time);
    EXPECT_EQ(written()->chargeLimitPercent, 199);
    EXPECT_EQ(written()->lastCalibrationTimestamp, time);
}

TEST_F(SharedConfigTest, PutsBackASettingThatASuddenEndHasLaidAside) {
    auto ours = limitOn;
    ours.lastCalibrationTimestamp = 1'700'000'000;
    auto theirs = limitOn;
    theirs.chargeLimitPercent = 60;
    outer.write(".pwr_limiter-1", encode(theirs).value());
    outer.write(".pwr_limiter-2", encode(ours).value());
    write(ours);
    SharedConfig::recover(folder, 1'700'000'000);
    EXPECT_EQ(written(), theirs);
    auto later = limitOn; // written since then, with the application's own time
    later.chargeLimitPercent = 50;
    write(later);
    SharedConfig::recover(folder, 1'700'000'000);
    EXPECT_EQ(written(), later);
}

TEST_F(SharedConfigTest, LeavesAFileThatItCannotReplaceAloneForAWhile) {
    write(limitOn);
    config.read(folder);
    std::filesystem::remove_all(outer.path());
    config.correct(folder, 1'700'000'000); // fails
    std::filesystem::create_directories(outer.path());
    folder = *Folder::openShared(outer.path());
    write(limitOn);
    int calls = 0;
    while (written()->lastCalibrationTimestamp == 0 && calls < 1000) {
        config.correct(folder, 1'700'000'000);
        ++calls;
    }
    EXPECT_GT(calls, 10);
    EXPECT_LT(calls, 100);
}

} // namespace
} // namespace quelby::limiter
