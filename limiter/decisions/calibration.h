// When the battery is charged fully, how long it is kept there, and what is said about it meanwhile.
//
// 1. Due: calibration and limit are wanted, a charger is connected, and the interval has passed since the
//    last one, or there was none.
// 2. Charging: the limit is lifted until the battery is full.
// 3. Holding: it is kept full for an hour, counted only while the helper sees it so: neither sleep nor time
//    without a charger belongs to it.
// 4. Done: the time is taken down, and the limit comes back.
//
// Without its charger a calibration waits; it goes on where it was. One that is no longer wanted ends without
// having been one.
#pragma once

#include <optional>
#include <string>

namespace quelby::limiter {

struct CalibrationProgress {
    bool reachedFull = false;
    double heldSeconds = 0;    // kept full so far
    double stalledSeconds = 0; // nearly full and taking no charge so far

    bool operator==(const CalibrationProgress&) const = default;
};

struct CalibrationMoment {
    bool wanted = false; // and there is a limit that can be lifted
    int intervalDays = 30;
    bool charger = false;
    bool full = false;
    bool stalled = false; // nearly full, and taking no charge
    double now = 0;       // seconds since 1970
    double elapsed = 0;   // seconds since the moment before, as far as the helper was awake
};

class Calibration {
public:
    static constexpr double holdSeconds = 3600;

    // The time of the last one, 0: none; and one under way.
    Calibration(double last, std::optional<CalibrationProgress> progress)
        : last_(last), progress_(progress) {}

    void advance(const CalibrationMoment& moment);

    [[nodiscard]] bool isActive() const { return progress_.has_value(); }

    [[nodiscard]] const std::optional<CalibrationProgress>& progress() const { return progress_; }

    [[nodiscard]] double last() const { return last_; }

    // For a person, while it is active: "holding at 100%, 42 min left".
    [[nodiscard]] std::string phase() const;

private:
    [[nodiscard]] bool isDue(const CalibrationMoment& moment) const;

    double last_;
    std::optional<CalibrationProgress> progress_;
    bool charger_ = true; // at the last moment
};

} // namespace quelby::limiter
