// What a person reads while the helper holds, releases and calibrates a battery: the helper at work on a
// simulated laptop, and the application's programs beside it.

#include <csignal>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "limiter/kernel/sysfs_attributes.h"
#include "limiter/program/service.h"
#include "limiter/support/simulated_laptop.h"
#include "limiter/support/test_time.h"
#include "support/quelbyctl.h"
#include "support/running_program.h"
#include "support/temporary_folder.h"

namespace quelby::limiter {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

constexpr double minute = 60;

class DashboardWords : public testing::Test {
protected:
    DashboardWords() {
        for (const auto& [name, value] :
             std::vector<std::pair<std::string, std::string>>{{"BAT0/type", "Battery"},
                                                              {"BAT0/present", "1"},
                                                              {"BAT0/status", "Charging"},
                                                              {"BAT0/capacity", "50"},
                                                              {"BAT0/charge_full", "5000000"},
                                                              {"BAT0/charge_full_design", "5000000"},
                                                              {"BAT0/charge_now", "2500000"},
                                                              {"BAT0/voltage_now", "11400000"},
                                                              {"BAT0/current_now", "1000000"},
                                                              {"BAT0/charge_control_start_threshold", "0"},
                                                              {"BAT0/charge_control_end_threshold", "100"},
                                                              {"AC/type", "Mains"},
                                                              {"AC/online", "1"}}) {
            outer.write("sys/class/power_supply/" + name, value + '\n');
        }
        outer.write("proc/stat", "cpu 1 1 1 1\n");
    }

    static std::unique_ptr<SysfsAttributes> attributesIn(const fs::path& root) {
        fs::create_directory(root);
        return std::move(*SysfsAttributes::open(root));
    }

    // Of either program, so that it sees this laptop and nothing of its user's.
    [[nodiscard]] std::vector<std::string> withPlaces(std::vector<std::string> words) const {
        words.insert(words.end(),
                     {"--sysfs-root", outer.path() / "sys", "--config-dir", outer.path() / "shared",
                      "--data-dir", outer.path() / "data", "--preferences", outer.path() / "preferences"});
        return words;
    }

    void wish(const DaemonConfig& config) const { outer.write("shared/config.json", encode(config).value()); }

    [[nodiscard]] Json chargeLimit() const {
        const auto printed = quelbyctl(withPlaces({"dashboard", "--json"}));
        EXPECT_EQ(printed.exitStatus, 0) << printed.errors;
        return Json::parse(printed.output, nullptr, false)["chargeLimit"];
    }

    [[nodiscard]] std::string line() const {
        const auto limit = chargeLimit();
        return limit.contains("status") && limit["status"].is_object() ? limit["status"]["text"]["text"]
                                                                       : Json("none");
    }

    // The sentence of the published fields, for terminals and scripts.
    [[nodiscard]] std::string sentence() const {
        const auto printed = quelbyctl(withPlaces({"status", "--json"}));
        EXPECT_EQ(printed.exitStatus, 0) << printed.errors;
        return Json::parse(printed.output, nullptr, false).value("chargeLimitStatus", "none");
    }

    // The helper serves the laptop for so long, round by round, and goes on with the next call.
    void serve(double seconds) {
        const double until = time.now() + seconds;
        time.sleep = [this, until](double pause, bool) {
            time.pass(pause);
            laptop.pass(pause);
            outer.write("sys/class/power_supply/BAT0/charge_now",
                        std::to_string(static_cast<long>(laptop.percent() * 50'000)) + '\n');
            return time.now() < until ? Wake::time : Wake::stop;
        };
        limiter.emplace(Surroundings{.attributes = *attributes,
                                     .pause = [](std::chrono::milliseconds) {},
                                     .rivals = [] { return "TLP"; },
                                     .save =
                                         [this](const LimiterState& state) {
                                             saved = state;
                                             return true;
                                         }},
                        saved);
        Service service(*limiter, outer.path() / "shared", time, time);
        ASSERT_TRUE(service.run());
        statusAtTheEnd = outer.read("shared/status.json");
        // As it stands in the middle of its work: a person does not see its end.
        time.sleep = [this](double pause, bool) {
            time.pass(pause);
            return Wake::time;
        };
        ASSERT_TRUE(service.runOnce());
    }

    TemporaryFolder outer{inMemory()};
    std::unique_ptr<SysfsAttributes> attributes = attributesIn(outer.path() / "sys");
    SimulatedLaptop laptop{*attributes};
    TestTime time;
    LimiterState saved;
    std::optional<Limiter> limiter;
    std::string statusAtTheEnd;
};

TEST_F(DashboardWords, TellEachStageOfALimitAndOfItsCalibration) {
    DaemonConfig config{.chargeLimitEnabled = true, .chargeLimitPercent = 80};
    wish(config);
    serve(minute);
    EXPECT_TRUE(chargeLimit()["helperInstalled"]);
    EXPECT_EQ(line(), "Charging to 80%");
    EXPECT_EQ(sentence(), "Charging to 80%");
    serve(61 * minute);
    EXPECT_NEAR(laptop.percent(), 80, 0.1);
    EXPECT_EQ(line(), "Holding at 80%");
    EXPECT_EQ(sentence(), "Holding at 80%");
    laptop.plug(false);
    serve(60 * minute);
    EXPECT_LT(laptop.percent(), 70);
    EXPECT_EQ(line(), "Will activate when charger is connected");
    EXPECT_EQ(sentence(), "Waiting for charger");
    laptop.plug(true);
    config.calibrationEnabled = true;
    wish(config);
    serve(minute);
    EXPECT_EQ(line(), "Calibrating — charging to 100%");
    EXPECT_EQ(sentence(), "Calibrating: charging to 100%");
    serve(65 * minute);
    EXPECT_EQ(laptop.percent(), 100);
    EXPECT_EQ(line(), "Calibrating — charging to 100%");
    EXPECT_EQ(sentence().rfind("Calibrating: holding at 100%, ", 0), 0U) << sentence();
    laptop.plug(false);
    serve(minute);
    EXPECT_EQ(sentence(), "Calibrating: paused: charger unplugged");
    laptop.plug(true);
    serve(90 * minute);
    EXPECT_GT(saved.lastCalibration, 1'700'000'000);
    EXPECT_EQ(line(), "Holding at 80%"); // the battery is above it, and is charged no more
    EXPECT_EQ(decodeDaemonConfig(outer.read("shared/config.json"))->lastCalibrationTimestamp,
              saved.lastCalibration);
    laptop.plug(false);
    serve(120 * minute);
    laptop.plug(true);
    serve(90 * minute);
    EXPECT_EQ(line(), "Holding at 80%");
    config.chargeLimitEnabled = false;
    wish(config);
    serve(90 * minute);
    EXPECT_EQ(laptop.percent(), 100);
    EXPECT_EQ(attributes->read("class/power_supply/BAT0/charge_control_end_threshold"), "100");
    EXPECT_FALSE(chargeLimit()["enabled"]);
    EXPECT_EQ(sentence(), "");
}

TEST_F(DashboardWords, AreNoOthersForTheApplicationWithoutADisplay) {
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 80});
    serve(61 * minute);
    ASSERT_EQ(line(), "Holding at 80%");
    const auto before = outer.read("shared/config.json");
    RunningProgram recorder(withPlaces({QUELBY_BINARY_DIR "/quelby", "--headless"}), plainEnvironment());
    EXPECT_THAT(recorder.line(), testing::HasSubstr("80 % plugged in"));
    recorder.signal(SIGTERM);
    EXPECT_EQ(recorder.end().exitStatus, 0);
    EXPECT_EQ(outer.read("shared/config.json"), before); // it changes no setting
}

TEST_F(DashboardWords, OfferTheInstallationAgainOnceTheHelperHasEnded) {
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 80});
    serve(minute);
    EXPECT_TRUE(chargeLimit()["helperInstalled"]);
    outer.write("shared/status.json", statusAtTheEnd);
    EXPECT_FALSE(chargeLimit()["helperInstalled"]);
}

} // namespace
} // namespace quelby::limiter
