// Very many damaged files, in the place of the application's and of the helper's own.

#include <array>
#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

#include "base/number_text.h"
#include "limiter/files/limiter_state.h"
#include "limiter/files/shared_config.h"
#include "limiter/records/details.h"
#include "limiter/records/status_text.h"
#include "limiter/support/test_bench.h"
#include "support/temporary_folder.h"

namespace quelby::limiter {
namespace {

using namespace std::string_view_literals;

// QUELBY_FUZZ_ROUNDS asks for more.
std::int64_t rounds() {
    const char* const asked = std::getenv("QUELBY_FUZZ_ROUNDS");
    return asked == nullptr ? 3000 : wholeNumber(asked).value_or(0);
}

class Damage {
public:
    [[nodiscard]] std::string done(std::string text) {
        for (auto count = upTo(4); count > 0; --count) {
            const auto position = upTo(text.size());
            const auto length = upTo(std::min<std::size_t>(text.size() - position, 12));
            switch (upTo(4)) {
            case 0:
                text.erase(position, length);
                break;
            case 1:
                text.insert(position, text.substr(upTo(text.size()), upTo(60)));
                break;
            case 2:
                text.resize(position);
                break;
            default:
                text.replace(position, length, tokens.at(upTo(tokens.size() - 1)));
            }
        }
        return text;
    }

private:
    static constexpr std::array tokens{"{"sv,        "}"sv,   "["sv,    "]"sv,    ","sv,
                                       ":"sv,        "\""sv,  "\\"sv,   "0"sv,    "-9"sv,
                                       "."sv,        "e99"sv, "null"sv, "true"sv, "false"sv,
                                       "1e999"sv,    "\0"sv,  "\xFF"sv, "80.0"sv, "9223372036854775808"sv,
                                       "{\"end\":"sv};

    std::size_t upTo(std::size_t most) {
        return std::uniform_int_distribution<std::size_t>(0, most)(engine_);
    }

    std::minstd_rand engine_{4711};
};

TEST(RottenConfig, NeverStopsTheHelperNorLeadsItAstray) {
    const TemporaryFolder outer(inMemory());
    const auto folder = *Folder::openShared(outer.path());
    TestBench bench;
    addLaptop(bench.hardware);
    addThinkPad(bench.hardware);
    SharedConfig config;
    Damage damage;
    const DaemonConfig sound{
        .chargeLimitEnabled = true, .chargeLimitPercent = 75, .calibrationEnabled = true};
    std::int64_t understood = 0;
    for (std::int64_t round = 0; round < rounds() && !testing::Test::HasFailure(); ++round) {
        const auto text = damage.done(encode(sound).value());
        SCOPED_TRACE(text);
        outer.write("config.json", text);
        const auto before = config.last();
        config.read(folder);
        const auto decoded = decodeDaemonConfig(text);
        understood += decoded ? 1 : 0;
        EXPECT_EQ(config.last(), decoded ? decoded : before);
        bench.wish = config.last() ? wishFrom(*config.last()) : Wish();
        EXPECT_GE(bench.wish.percent, 20);
        EXPECT_LE(bench.wish.percent, 100);
        EXPECT_GE(bench.wish.intervalDays, 1);
        bench.remembered = config.last() ? credibleCalibration(*config.last(), bench.now) : 0;
        const auto outcome = bench.round();
        EXPECT_EQ(decodeDaemonStatus(encode(outcome.status)), outcome.status);
        config.correct(folder, bench.limiter->lastCalibration());
    }
    EXPECT_GT(understood, rounds() / 20);
    EXPECT_LT(understood, rounds() - rounds() / 20);
}

TEST(RottenState, IsReadAsFarAsItCanBeUnderstood) {
    Damage damage;
    const auto sound = encode(LimiterState{.found = {{"BAT0", {.end = 100, .start = 0, .mode = "Standard"}}},
                                           .lastCalibration = 1'700'000'000,
                                           .calibration = CalibrationProgress{.heldSeconds = 60}});
    for (std::int64_t round = 0; round < rounds() && !testing::Test::HasFailure(); ++round) {
        const auto text = damage.done(sound);
        SCOPED_TRACE(text);
        const auto state = decodeLimiterState(text);
        for (const auto& [battery, setting] : state.found) {
            EXPECT_TRUE(!setting.end || (*setting.end >= 0 && *setting.end <= 100));
            EXPECT_TRUE(!setting.start || (*setting.start >= 0 && *setting.start <= 100));
        }
        EXPECT_GE(state.lastCalibration, 0);
        EXPECT_EQ(decodeLimiterState(encode(state)), state);
    }
}

} // namespace
} // namespace quelby::limiter
