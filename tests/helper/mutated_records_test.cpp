// Both decoders against very many damaged files.

#include <array>
#include <random>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "record_texts.h"

namespace quelby {
namespace {

using Json = nlohmann::json;
using namespace std::string_view_literals;

class Mutator {
public:
    explicit Mutator(unsigned seed) : engine_(seed) {}

    [[nodiscard]] std::string mutated(std::string text) {
        for (auto count = upTo(2) + 1; count > 0; --count) {
            mutate(text);
        }
        return text;
    }

private:
    static constexpr std::array tokens{
        "{"sv,     "}"sv,
        "["sv,     "]"sv,
        ","sv,     ":"sv,
        R"(")"sv,  R"(\)"sv,
        "0"sv,     "9"sv,
        "-"sv,     "."sv,
        "e9"sv,    "null"sv,
        "true"sv,  "false"sv,
        "1e999"sv, "\0"sv,
        "\xFF"sv,  R"(\ud83d)"sv,
        "\xC3"sv,  R"("x":[{}],)"sv,
        " "sv,     "18446744073709551616"sv,
    };

    std::size_t upTo(std::size_t most) {
        return std::uniform_int_distribution<std::size_t>(0, most)(engine_);
    }

    void mutate(std::string& text) {
        const auto position = upTo(text.size());
        const auto length = upTo(std::min<std::size_t>(text.size() - position, 8));
        switch (upTo(5)) {
        case 0:
            text.erase(position, length);
            break;
        case 1:
            text.insert(position, text.substr(upTo(text.size()), upTo(40)));
            break;
        case 2:
            text.replace(position, length, 1, static_cast<char>(upTo(255)));
            break;
        case 3:
            text.resize(position);
            break;
        default:
            text.replace(position, upTo(1) == 0 ? 0 : length, tokens.at(upTo(tokens.size() - 1)));
        }
    }

    std::minstd_rand engine_;
};

bool decodesLikeItsOwnText(const DaemonConfig& config) {
    return decodeDaemonConfig(encode(config).value_or("")) == config;
}

bool decodesLikeItsOwnText(const DaemonStatus& status) {
    const Json object{
        {"daemonRunning", status.daemonRunning},
        {"chargingInhibited", status.chargingInhibited},
        {"calibrationActive", status.calibrationActive},
        {"calibrationPhase", status.calibrationPhase ? Json(*status.calibrationPhase) : Json()},
        {"batteryPercent", status.batteryPercent},
        {"lastUpdate", status.lastUpdate},
    };
    return decodeDaemonStatus(object.dump()) == status;
}

// The parser on its own, which keeps the last of several values of a key.
bool saysTheSame(const std::string& text, const DaemonConfig& config) {
    const auto object = Json::parse(text, nullptr, false);
    return object.is_object() && object.at("chargeLimitEnabled") == config.chargeLimitEnabled &&
           object.at("chargeLimitPercent") == config.chargeLimitPercent &&
           object.at("calibrationEnabled") == config.calibrationEnabled &&
           object.at("calibrationIntervalDays") == config.calibrationIntervalDays &&
           object.at("lastCalibrationTimestamp") == config.lastCalibrationTimestamp;
}

bool saysTheSame(const std::string& text, const DaemonStatus& status) {
    const auto object = Json::parse(text, nullptr, false);
    return object.is_object() && object.at("daemonRunning") == status.daemonRunning &&
           object.at("chargingInhibited") == status.chargingInhibited &&
           object.at("calibrationActive") == status.calibrationActive &&
           object.value("calibrationPhase", Json()) ==
               (status.calibrationPhase ? Json(*status.calibrationPhase) : Json()) &&
           object.at("batteryPercent") == status.batteryPercent &&
           object.at("lastUpdate") == status.lastUpdate;
}

// How many of the mutations of the text were accepted.
template <typename Decode>
int accepted(const std::string& text, int mutations, Decode decode) {
    Mutator mutator(20'240'229);
    int count = 0;
    for (int mutation = 0; mutation < mutations; ++mutation) {
        const auto damaged = mutator.mutated(text);
        const auto record = decode(damaged);
        if (record) {
            ++count;
            EXPECT_TRUE(decodesLikeItsOwnText(*record)) << damaged;
            EXPECT_TRUE(saysTheSame(damaged, *record)) << damaged;
        }
    }
    return count;
}

constexpr int mutations = 30'000;

TEST(MutatedRecords, AreRefusedOrMeanWhatTheySay) {
    const int configs = accepted(configText, mutations, decodeDaemonConfig);
    EXPECT_GT(configs, mutations / 100);
    EXPECT_LT(configs, mutations / 2);
    const int statuses = accepted(statusText, mutations, decodeDaemonStatus);
    EXPECT_GT(statuses, mutations / 100);
    EXPECT_LT(statuses, mutations / 2);
}

} // namespace
} // namespace quelby
