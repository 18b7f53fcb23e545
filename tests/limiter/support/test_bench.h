// The helper's rounds on hardware and in a time of the test's own.
#pragma once

#include <memory>
#include <vector>

#include "limiter/limiter.h"
#include "limiter/support/makers.h"

namespace quelby::limiter {

inline constexpr double someTime = 1'700'000'000; // seconds since 1970

class TestBench {
public:
    // Starts the helper, or starts it again with what it has taken down.
    void start() {
        limiter = std::make_unique<Limiter>(
            Surroundings{.attributes = hardware,
                         .pause = [this](std::chrono::milliseconds time) { pauses.push_back(time); },
                         .rivals = [this] { return rivals; },
                         .save =
                             [this](const LimiterState& state) {
                                 ++saves;
                                 saved = saving ? state : saved;
                                 return saving;
                             }},
            saved);
        isNew = true;
    }

    // Lets so many seconds pass, and then a round.
    const RoundOutcome& round(double seconds = 8) {
        if (!limiter) {
            start();
        }
        now += seconds;
        awake += seconds;
        last = limiter->round(wish, remembered, {.now = now, .awake = awake, .anew = isNew});
        isNew = false;
        return last;
    }

    // The computer sleeps, and the helper notices by its clocks.
    const RoundOutcome& roundAfterSleep() {
        now += 3600;
        isNew = true;
        return round();
    }

    const RoundOutcome& limitTo(int percent) {
        wish.limit = true;
        wish.percent = percent;
        return round();
    }

    const RoundOutcome& switchOff() {
        wish.limit = false;
        return round();
    }

    [[nodiscard]] const BatteryDetails& battery() const { return last.details.batteries.at(0); }

    // What was written since the last call.
    std::vector<std::string> writes() { return std::exchange(hardware.writes, {}); }

    [[nodiscard]] std::string text(const std::string& path) const {
        return hardware.read(path).value_or("unreadable");
    }

    void set(const std::string& path, const std::string& value) { hardware[supplies + path].text = value; }

    OddHardware hardware;
    Wish wish;
    double remembered = 0;
    double now = someTime;
    double awake = 1000;
    bool isNew = true;
    LimiterState saved;
    bool saving = true;
    int saves = 0;
    std::string rivals = "UPower";
    std::vector<std::chrono::milliseconds> pauses;
    std::unique_ptr<Limiter> limiter;
    RoundOutcome last;
};

} // namespace quelby::limiter
