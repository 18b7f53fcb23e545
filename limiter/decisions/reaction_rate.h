#pragma once

namespace quelby::limiter {

// How often the helper reacts to what others do: at once to a few things in a row, and then at a rate that
// costs nothing, however fast they come.
class ReactionRate {
public:
    static constexpr int burst = 5;       // reactions in a row
    static constexpr double recovery = 5; // seconds for each further one

    // Seconds until the next reaction; 0: now. The time counts seconds from anywhere.
    [[nodiscard]] double wait(double time) const;

    void react(double time);

private:
    [[nodiscard]] double spentAt(double time) const;

    double spent_ = 0; // reactions that have not been recovered from
    double since_ = 0;
};

} // namespace quelby::limiter
