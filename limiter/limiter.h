// What the helper does in each round: looks at the batteries, carries the wish out, and says what came of it.
//
// It knows neither files nor clocks, and asks the kernel only through Attributes, so that years of it can
// pass in a test.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "helper/daemon_status.h"
#include "limiter/decisions/hold_watch.h"
#include "limiter/decisions/wish.h"
#include "limiter/files/limiter_state.h"
#include "limiter/kernel/machine_facts.h"
#include "limiter/kernel/power_supplies.h"
#include "limiter/level_keeper.h"
#include "limiter/mechanisms/probe.h"
#include "limiter/records/details.h"

namespace quelby::limiter {

// What the helper asks of the place that it runs in.
struct Surroundings {
    Attributes& attributes;
    Pause pause;
    std::function<std::string()> rivals; // the programs that may have changed a level
    std::function<bool(const LimiterState&)> save;
};

struct RoundMoment {
    double now = 0;    // seconds since 1970
    double awake = 0;  // seconds from anywhere, during which the computer did not sleep
    bool anew = false; // it has just started or woken up
};

struct RoundOutcome {
    DaemonStatus status;
    Details details;
    bool isUndecided = false; // a second look will tell whether the battery is held
};

class Limiter {
public:
    Limiter(Surroundings surroundings, LimiterState state);

    // The time of the last calibration that an application remembers counts where the helper knows none.
    [[nodiscard]] RoundOutcome round(const Wish& wish, double rememberedCalibration,
                                     const RoundMoment& moment);

    // Puts back what was found at first, and gives up a calibration. The problem says what could not be.
    [[nodiscard]] Result<void> restore();

    // The helper ends: charging is released where holding the battery would need it, and all is taken down.
    void letGo();

    // What holds now, without looking again; for after the two above.
    [[nodiscard]] RoundOutcome describe(const Wish& wish, const RoundMoment& moment);

    [[nodiscard]] double lastCalibration() const { return state_.lastCalibration; }

private:
    struct Kept {
        LevelKeeper keeper;
        bool isNew = true; // has not been through a round
    };

    void meetBatteries();
    [[nodiscard]] bool canLift(double time) const;
    void calibrate(const Wish& wish, double rememberedCalibration, const RoundMoment& moment);
    [[nodiscard]] Aim aimFor(const Wish& wish) const;
    void takeDownFound(const Aim& aim);
    void keepLevels(const Aim& aim, const RoundMoment& moment);
    [[nodiscard]] bool allLookHeld(const Wish& wish) const;
    [[nodiscard]] DaemonStatus status(const RoundMoment& moment) const;
    [[nodiscard]] Details details(const Wish& wish, const RoundMoment& moment);
    [[nodiscard]] BatteryDetails detailsOf(const Battery& battery, const Wish& wish) const;
    [[nodiscard]] std::optional<std::string> firstError() const;
    [[nodiscard]] Setting foundOf(const std::string& battery) const;
    void save();

    Surroundings surroundings_;
    LimiterState state_;
    std::optional<LimiterState> saved_;
    bool savingFailed_ = false;
    MachineFacts machine_;
    PowerSupplies supplies_;
    std::map<std::string, Kept> kept_; // by the battery's name
    Calibration calibration_;
    HoldWatch hold_;
    std::optional<std::string> rival_;
    std::optional<double> lastRound_; // awake seconds
};

} // namespace quelby::limiter
