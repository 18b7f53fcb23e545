#pragma once

namespace quelby::limiter {

class Clock {
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    // Seconds since 1970; anybody who may set the clock makes it jump.
    [[nodiscard]] virtual double now() = 0;

    // Seconds from anywhere; stands still while the computer sleeps, and never jumps.
    [[nodiscard]] virtual double awake() = 0;
};

class SystemClock final : public Clock {
public:
    [[nodiscard]] double now() override;
    [[nodiscard]] double awake() override;
};

} // namespace quelby::limiter
