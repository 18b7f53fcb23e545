#pragma once

#include <deque>

namespace quelby::limiter {

// Something else changes the level. It is put right again three times a day, and then left alone: two
// programs that take turns would wear the hardware, and nobody would know which value stands.
class Contest {
public:
    static constexpr std::size_t rounds = 3;
    static constexpr double memory = 86400; // seconds

    // Another change was seen; whether to put it right. The time counts seconds from anywhere.
    [[nodiscard]] bool fightAgain(double time);

    // It was seen once too often, and has not been forgotten yet.
    [[nodiscard]] bool isLost(double time) const;

    void forget();

private:
    std::deque<double> fights_; // their times
    bool lost_ = false;
};

} // namespace quelby::limiter
