// What a person reads while the helper holds, releases and calibrates a battery: the helper at work on a
// simulated laptop, and quelbyctl beside it.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "limiter/kernel/sysfs_attributes.h"
#include "limiter/program/service.h"
#include "limiter/support/simulated_laptop.h"
#include "limiter/support/test_time.h"
#include "support/quelbyctl.h"
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

    void wish(const DaemonConfig& config) const { outer.write("shared/config.json", encode(config).value()); }

    [[nodiscard]] Json chargeLimit() const {
        const auto printed =
            quelbyctl({"dashboard", "--json", "--sysfs-root", outer.path() / "sys", "--config-dir",
                       outer.path() / "shared", "--data-dir", outer.path() / "data", "--preferences",
                       outer.path() / "preferences"});
        EXPECT_EQ(printed.exitStatus, 0) << printed.errors;
        return Json::parse(printed.output, nullptr, false)["chargeLimit"];
    }

    [[nodiscard]] std::string line() const {
        const auto limit = chargeLimit();
        return limit.contains("status") && limit["status"].is_object() ? limit["status"]["text"]
                                                                       : Json("none");
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

    TemporaryFolder outer{fs::exists("/dev/shm") ? "/dev/shm" : fs::temp_directory_path()};
    std::unique_ptr<SysfsAttributes> attributes = std::move(*SysfsAttributes::open(outer.path() / "sys"));
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
    serve(60 * minute);
    EXPECT_NEAR(laptop.percent(), 80, 0.1);
    serve(minute);
    EXPECT_EQ(line(), "Holding at 80%");
    laptop.plug(false);
    serve(60 * minute);
    EXPECT_LT(laptop.percent(), 70);
    EXPECT_EQ(line(), "Waiting for charger");
    laptop.plug(true);
    config.calibrationEnabled = true;
    wish(config);
    serve(minute);
    EXPECT_EQ(line(), "Calibrating: charging to 100%");
    serve(65 * minute);
    EXPECT_EQ(laptop.percent(), 100);
    EXPECT_EQ(line().rfind("Calibrating: holding at 100%, ", 0), 0U) << line();
    laptop.plug(false);
    serve(minute);
    EXPECT_EQ(line(), "Calibrating: paused: charger unplugged");
    laptop.plug(true);
    serve(90 * minute);
    EXPECT_GT(saved.lastCalibration, 1'700'000'000);
    EXPECT_NE(line().rfind("Calibrating: ", 0), 0U) << line();
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
