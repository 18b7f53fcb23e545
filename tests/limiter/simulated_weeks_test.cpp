// Weeks of a laptop with a limit and its calibrations, as the application sees them: the helper serves them in a
// time of the test's own, what the application would have found in each round is recorded, and the built
// programs play it.

#include <cmath>
#include <sstream>

#include <nlohmann/json.hpp>

#include "limiter/support/served_laptop.h"
#include "limiter/support/simulated_laptop.h"
#include "platform/replay/recording_line.h"
#include "support/laptop_recording.h"
#include "support/quelbyctl.h"

namespace quelby::limiter {
namespace {

using Json = nlohmann::json;
using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr double hour = 3600;
constexpr double day = 24 * hour;
constexpr double hurry = 75;      // so many times as long is each pause of the helper
constexpr int unpluggedUntil = 4; // o'clock, every day from midnight

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

class SimulatedWeeks : public ServedLaptop {
protected:
    SimulatedWeeks() { laptop.pass(0); }

    // The application changes a setting.
    void set(std::vector<std::string> words) const {
        words.insert(words.end(),
                     {"--config-dir", folder.path(), "--preferences", outer.path() / "preferences",
                      "--replay", outer.write("any.jsonl", laptopRecording(1))});
        const auto done = quelbyctl(words);
        EXPECT_EQ(done.exitStatus, 0) << done.errors;
    }

    void serveUntil(double end) {
        time.sleep = [this, end](double pause, bool) {
            cycles.push_back(cycle());
            const double seconds = pause * hurry;
            time.pass(seconds);
            laptop.plug(std::fmod(time.now() - begin, day) >= unpluggedUntil * hour);
            laptop.pass(seconds);
            return time.now() - begin < end ? Wake::time : Wake::stop;
        };
        EXPECT_TRUE(run());
    }

    [[nodiscard]] RecordedCycle cycle() {
        auto cycle = laptopCycle(0);
        const auto state = hardware.text(bat0 + "status");
        auto& battery = std::get<PropertyTable>(cycle.battery);
        battery["AppleRawCurrentCapacity"] = static_cast<std::int64_t>(laptop.percent() * 50);
        battery["ExternalConnected"] = state != "Discharging";
        battery["IsCharging"] = state == "Charging";
        battery["FullyCharged"] = state == "Full";
        battery["InstantAmperage"] = state == "Charging" ? 2000 : state == "Discharging" ? -750 : 0;
        cycle.time = time.now();
        cycle.status = folder.read("status.json");
        cycle.config = folder.read("config.json");
        return cycle;
    }

    [[nodiscard]] std::vector<std::string> playing(std::vector<std::string> words) const {
        std::string text;
        for (const auto& one : cycles) {
            text += recordingLine(one) + '\n';
        }
        words.insert(words.end(), {"--fast", "--data-dir", outer.path() / "data", "--replay",
                                   outer.write("weeks.jsonl", text)});
        return words;
    }

    TemporaryFolder outer;
    SimulatedLaptop laptop{hardware};
    double begin = time.now();
    std::vector<RecordedCycle> cycles;
};

// What the first card says, each sentence once as long as it stands, minutes left out.
std::vector<std::string> sentences(const std::vector<Json>& fields, std::size_t from, std::size_t to) {
    std::vector<std::string> sentences;
    for (auto index = from; index < to; ++index) {
        auto sentence = fields[index]["chargeLimitStatus"].get<std::string>();
        sentence = sentence.substr(0, sentence.find(','));
        if (!sentence.empty() && (sentences.empty() || sentences.back() != sentence)) {
            sentences.push_back(sentence);
        }
    }
    return sentences;
}

TEST_F(SimulatedWeeks, AreToldStageByStage) {
    set({"limit", "80"});
    set({"limit", "on"});
    serveUntil(2 * day);
    const auto twoDays = cycles.size();
    set({"calibration", "7"});
    serveUntil(3 * day);
    const auto threeDays = cycles.size();
    serveUntil(12 * day);
    set({"limit", "90"});
    serveUntil(14 * day);

    const auto watched = quelbyctl(playing({"watch", "--json"}));
    ASSERT_EQ(watched.exitStatus, 0) << watched.errors;
    std::vector<Json> fields;
    for (const auto& line : linesOf(watched.output)) {
        fields.push_back(Json::parse(line));
    }
    ASSERT_EQ(fields.size(), cycles.size());
    EXPECT_THAT(sentences(fields, 0, twoDays),
                ElementsAre("Charging to 80%", "Waiting for charger", "Charging to 80%", "Holding at 80%",
                            "Waiting for charger", "Charging to 80%", "Holding at 80%"));
    EXPECT_THAT(sentences(fields, twoDays, threeDays),
                ElementsAre("Waiting for charger", "Calibrating: charging to 100%",
                            "Calibrating: holding at 100%", "Holding at 80%"));
    EXPECT_EQ(fields.back()["chargeLimitStatus"], "Holding at 90%");
    EXPECT_EQ(fields.back()["lastCalibrationDate"], saved.lastCalibration);

    const auto recorded =
        runProgram(playing({QUELBY_BINARY_DIR "/quelby", "--headless"}), plainEnvironment());
    ASSERT_EQ(recorded.exitStatus, 0) << recorded.errors;
    const auto lines = linesOf(recorded.output);
    ASSERT_EQ(lines.size(), cycles.size());
    int calibrations = 0;
    bool wasCalibrating = false;
    for (std::size_t index = 0; index < lines.size() && !HasFailure(); ++index) {
        const auto status = decodeDaemonStatus(*cycles[index].status).value_or(DaemonStatus());
        SCOPED_TRACE(testing::Message() << lines[index] << *cycles[index].status);
        const std::string sentence = fields[index]["chargeLimitStatus"];
        if (sentence.rfind("Holding at ", 0) == 0) {
            EXPECT_TRUE(status.chargingInhibited);
            // Full right after a calibration, until it is used again.
            EXPECT_THAT(lines[index], AnyOf(HasSubstr(" % plugged in"), HasSubstr("100 % full")));
            EXPECT_GE(fields[index]["batteryPercent"], 80);
        } else if (sentence.rfind("Charging to ", 0) == 0) {
            EXPECT_THAT(lines[index], HasSubstr(" % charging"));
        } else if (sentence == "Waiting for charger") {
            EXPECT_THAT(lines[index], HasSubstr(" % discharging"));
        } else if (sentence.rfind("Calibrating: holding", 0) == 0) {
            EXPECT_THAT(lines[index], HasSubstr("100 % full"));
        }
        calibrations += status.calibrationActive && !wasCalibrating ? 1 : 0;
        wasCalibrating = status.calibrationActive;
    }
    EXPECT_EQ(calibrations, 2); // on the third day, and a week after it
}

} // namespace
} // namespace quelby::limiter
