// One battery's level: written when it has to be, looked at in every round, and put right when something else
// changed it.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "limiter/decisions/contest.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// What a battery is to be set to.
struct Aim {
    enum class Kind {
        limit,   // charging stops at the percentage
        lift,    // it becomes full, and the limit comes back later
        restore, // what was found at first comes back, and is then nobody's concern here
    };

    Kind kind = Kind::restore;
    int percent = 100; // of a limit

    bool operator==(const Aim&) const = default;
};

class LevelKeeper {
public:
    LevelKeeper(std::string battery, std::unique_ptr<Mechanism> mechanism)
        : battery_(std::move(battery)), mechanism_(std::move(mechanism)) {}

    struct Moment {
        double time = 0;   // seconds from anywhere
        bool anew = false; // the hardware may have forgotten its setting without telling
        int batteryPercent = 0;
    };

    // The setting that was found at first is what the aim's restoring and lifting go by.
    void keep(const Aim& aim, const Setting& found, const Moment& moment);

    // Only looks.
    void look();

    // Lets the battery be charged where holding it would need the helper. The helper ends.
    void letGo(const Setting& found);

    [[nodiscard]] const Mechanism& mechanism() const { return *mechanism_; }

    // As read last.
    [[nodiscard]] const Setting& setting() const { return setting_; }

    [[nodiscard]] Level inForce() const;

    // What was found at first has been put back.
    [[nodiscard]] bool isRestored() const { return restored_; }

    // Something else has changed the level since the present aim was set ...
    [[nodiscard]] bool wasDisturbed() const { return disturbed_; }

    // ... and so often that its value stands.
    [[nodiscard]] bool yields(double time) const { return contest_.isLost(time); }

    // What went wrong with the present aim, as one sentence.
    [[nodiscard]] const std::optional<std::string>& error() const { return error_; }

private:
    [[nodiscard]] Setting wanted(const Aim& aim, const Setting& found, int batteryPercent) const;
    [[nodiscard]] bool wasChangedTo(const Setting& now) const;
    [[nodiscard]] bool hasToWrite(const Setting& wanted, const Setting& now, const Moment& moment);
    void write(const Setting& wanted, double time);
    [[nodiscard]] std::optional<std::string> complaint(const Result<void>& outcome,
                                                       const Setting& wanted) const;

    std::string battery_;
    std::unique_ptr<Mechanism> mechanism_;
    std::optional<Aim> aim_;
    std::optional<Setting> asked_; // written last for the present aim
    Setting obtained_;             // what the hardware made of it
    Setting setting_;
    bool restored_ = false;
    bool disturbed_ = false;
    Contest contest_;
    std::optional<std::string> error_;
    double tryAgainAt_ = 0; // where there is an error
    double patience_ = 0;   // seconds between two tries
};

} // namespace quelby::limiter
