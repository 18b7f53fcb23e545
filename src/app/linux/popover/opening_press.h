#pragma once

#include <chrono>
#include <optional>

#include <QPoint>

namespace quelby::app {

// The press of the item that opened the popover. A person who presses twice out of habit means one press, so what
// follows at the same place within the time of a double press does not close the popover again: another press of
// the item, from some hosts two more, or the same as a press outside the popover.
class OpeningPress {
public:
    using Time = std::chrono::steady_clock::time_point;

    // The pointer's place in pixels; nothing where that is not known for sure. The time is that of a double press
    // on this desktop.
    void happened(std::optional<QPoint> pointer, Time when, std::chrono::milliseconds doublePress);

    // Whether a press of now belongs to it. A place that is not known, of one of the two, is taken for the same.
    [[nodiscard]] bool goesOn(std::optional<QPoint> pointer, Time when) const;

private:
    std::optional<QPoint> pointer_;
    Time end_{};
};

} // namespace quelby::app
