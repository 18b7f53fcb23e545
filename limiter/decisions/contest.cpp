#include "limiter/decisions/contest.h"

namespace quelby::limiter {

bool Contest::fightAgain(double time) {
    while (!fights_.empty() && time - fights_.front() >= memory) {
        fights_.pop_front();
    }
    lost_ = fights_.size() >= rounds;
    if (!lost_) {
        fights_.push_back(time);
    }
    return !lost_;
}

bool Contest::isLost(double time) const {
    return lost_ && time - fights_.front() < memory;
}

void Contest::forget() {
    fights_.clear();
    lost_ = false;
}

} // namespace quelby::limiter
