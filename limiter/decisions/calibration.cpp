#include "limiter/decisions/calibration.h"

#include <cmath>

namespace quelby::limiter {

namespace {

constexpr double day = 86400;             // seconds
constexpr double worn = 1800;             // seconds after which a nearly full battery will not become fuller
constexpr double clockIsSet = 1577836800; // 2020-01-01; a clock that shows less has lost its battery

} // namespace

bool Calibration::isDue(const CalibrationMoment& moment) const {
    if (!moment.wanted || !moment.charger || moment.now < clockIsSet) {
        return false;
    }
    const bool clockWasAhead = last_ > moment.now + day; // when the last one was taken down
    return last_ <= 0 || clockWasAhead || moment.now - last_ >= moment.intervalDays * day;
}

void Calibration::advance(const CalibrationMoment& moment) {
    charger_ = moment.charger;
    if (!moment.wanted) {
        progress_.reset();
        return;
    }
    if (!progress_) {
        if (!isDue(moment)) {
            return;
        }
        progress_.emplace();
    } else if (moment.charger) {
        if (progress_->reachedFull) {
            progress_->heldSeconds += moment.elapsed;
        }
        progress_->stalledSeconds = moment.stalled ? progress_->stalledSeconds + moment.elapsed : 0;
    } else {
        progress_->reachedFull = false; // it has to become full again first
        progress_->stalledSeconds = 0;
    }
    if (moment.charger && (moment.full || progress_->stalledSeconds >= worn)) {
        progress_->reachedFull = true;
    }
    if (progress_->heldSeconds >= holdSeconds) {
        last_ = std::floor(moment.now);
        progress_.reset();
    }
}

std::string Calibration::phase() const {
    if (!charger_) {
        return "paused: charger unplugged";
    }
    if (!progress_ || !progress_->reachedFull) {
        return "charging to 100%";
    }
    const auto minutes = static_cast<int>(std::ceil((holdSeconds - progress_->heldSeconds) / 60));
    return "holding at 100%, " + std::to_string(minutes) + " min left";
}

} // namespace quelby::limiter
