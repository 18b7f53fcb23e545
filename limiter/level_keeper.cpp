#include "limiter/level_keeper.h"

#include <algorithm>

#include "limiter/charge_levels.h"

namespace quelby::limiter {

namespace {

// A write that failed is repeated at longer and longer intervals, seconds.
constexpr double firstPatience = 60;
constexpr double longestPatience = 3600;

template <typename T>
bool bothToldAndDifferent(const std::optional<T>& one, const std::optional<T>& other) {
    return one && other && *one != *other;
}

} // namespace

Setting LevelKeeper::wanted(const Aim& aim, const Setting& found, int batteryPercent) const {
    switch (aim.kind) {
    case Aim::Kind::limit:
        return mechanism_->limitedTo(aim.percent, batteryPercent);
    case Aim::Kind::lift:
        return mechanism_->lifted(found);
    case Aim::Kind::restore:
        break;
    }
    return mechanism_->restored(found);
}

void LevelKeeper::keep(const Aim& aim, const Setting& found, const Moment& moment) {
    if (aim_ != aim) {
        aim_ = aim;
        asked_.reset();
        contest_.forget();
        disturbed_ = false;
        restored_ = false;
        patience_ = 0;
    }
    const auto now = mechanism_->read();
    const auto wish = wanted(aim, found, moment.batteryPercent);
    if (!restored_ && hasToWrite(wish, now, moment)) {
        write(wish, moment.time);
        restored_ = aim.kind == Aim::Kind::restore && !error_;
    } else {
        setting_ = now;
    }
}

// The start is not looked at: firmware that tells anything there is known, and the end is what protects.
bool LevelKeeper::wasChangedTo(const Setting& now) const {
    return bothToldAndDifferent(now.end, obtained_.end) || bothToldAndDifferent(now.mode, obtained_.mode);
}

bool LevelKeeper::hasToWrite(const Setting& wanted, const Setting& now, const Moment& moment) {
    if (!asked_) {
        return true;
    }
    if (contest_.isLost(moment.time)) {
        return false;
    }
    if (moment.anew) {
        return true;
    }
    if (wasChangedTo(now)) {
        disturbed_ = true;
        return contest_.fightAgain(moment.time);
    }
    return wanted != asked_ || (error_ && moment.time >= tryAgainAt_);
}

void LevelKeeper::write(const Setting& wanted, double time) {
    const auto outcome = mechanism_->write(wanted);
    asked_ = wanted;
    setting_ = mechanism_->read();
    if (setting_ != wanted) {
        setting_ = mechanism_->read(); // some firmware gives the old value once more
    }
    obtained_ = setting_;
    error_ = complaint(outcome, wanted);
    patience_ = error_ ? std::clamp(2 * patience_, firstPatience, longestPatience) : 0;
    tryAgainAt_ = time + patience_;
}

std::optional<std::string> LevelKeeper::complaint(const Result<void>& outcome, const Setting& wanted) const {
    if (!outcome) {
        return outcome.error().sentence;
    }
    const int end = wanted.end.value_or(fullLevel);
    if (end < fullLevel && obtained_.end.value_or(end) >= fullLevel) {
        return battery_ + " accepted " + std::to_string(end) + "% but stays at " +
               std::to_string(*obtained_.end) + '%';
    }
    if (!wanted.end && bothToldAndDifferent(wanted.mode, obtained_.mode)) {
        return battery_ + " accepted " + *wanted.mode + " but stays at " + *obtained_.mode;
    }
    return std::nullopt;
}

void LevelKeeper::look() {
    setting_ = mechanism_->read();
}

void LevelKeeper::letGo(const Setting& found) {
    if (!mechanism_->holdsByItself()) {
        aim_ = Aim{.kind = Aim::Kind::lift};
        write(mechanism_->lifted(found), 0);
    } else {
        look();
    }
}

Level LevelKeeper::inForce() const {
    const bool isLimited = aim_ && aim_->kind == Aim::Kind::limit;
    // What is held only by the helper is not in force while the helper does not hold it.
    if (!mechanism_->holdsByItself() && isLimited && wasChangedTo(setting_)) {
        return mechanism_->levelOf(setting_, std::nullopt);
    }
    return mechanism_->levelOf(setting_, isLimited ? std::optional(aim_->percent) : std::nullopt);
}

} // namespace quelby::limiter
