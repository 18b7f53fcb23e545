#pragma once

#include <chrono>
#include <optional>

namespace quelby::app {

// A double press comes as two presses of the item, from some hosts even as three. A person who gives it out of
// habit wants what a single one does.
class RepeatedPress {
public:
    using Time = std::chrono::steady_clock::time_point;

    // Whether the press, told of now, belongs to the one before it: it comes within the time that the desktop
    // gives a double press.
    [[nodiscard]] bool isOne(Time now, std::chrono::milliseconds doublePress);

private:
    std::optional<Time> first_;
};

} // namespace quelby::app
