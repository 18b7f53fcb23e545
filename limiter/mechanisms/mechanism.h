// The one way in which a machine lets its battery be limited.
//
// A mechanism knows what its hardware can be set to and how that is written; it decides nothing and remembers
// nothing between two calls. When to write what, and what to think of the answer, is LevelKeeper's.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/problem.h"

namespace quelby::limiter {

// What hardware is set to. A part that it does not have, or does not tell, is absent.
struct Setting {
    std::optional<int> end;          // % of full charge at which charging stops
    std::optional<int> start;        // % below which it begins again
    std::optional<std::string> mode; // the kernel's word for how it charges

    bool operator==(const Setting&) const = default;
};

// What a setting comes to.
struct Level {
    bool limits = false;        // charging stops before the battery is full
    std::optional<int> percent; // where; absent where the hardware does not tell

    bool operator==(const Level&) const = default;
};

class Mechanism {
public:
    Mechanism() = default;
    Mechanism(const Mechanism&) = delete;
    Mechanism& operator=(const Mechanism&) = delete;
    virtual ~Mechanism() = default;

    // As the kernel calls its attribute.
    [[nodiscard]] virtual std::string_view name() const = 0;

    // The hardware goes on holding the battery without the helper, also while the computer is off. Otherwise
    // a setting left behind could keep a battery from ever being charged.
    [[nodiscard]] virtual bool holdsByItself() const { return true; }

    [[nodiscard]] virtual Setting read() const = 0;

    // The setting that comes nearest to stopping at this percentage, while the battery is at that one.
    [[nodiscard]] virtual Setting limitedTo(int percent, int batteryPercent) const = 0;

    // The setting that lets the battery become full at once, whatever was found at first.
    [[nodiscard]] virtual Setting lifted(const Setting& found) const = 0;

    // What was found at first, as far as it should come back.
    [[nodiscard]] virtual Setting restored(const Setting& found) const = 0;

    // The problem says which attribute refused which value, and why. What was refused in part may have been
    // done in part; what holds then, read() tells.
    [[nodiscard]] virtual Result<void> write(const Setting& setting) = 0;

    // What a setting that was read comes to, while the limit is the one that was asked for.
    [[nodiscard]] virtual Level levelOf(const Setting& setting, std::optional<int> limit) const = 0;
};

} // namespace quelby::limiter
