#pragma once

#include <chrono>
#include <optional>

#include <QPoint>

namespace quelby::app {

// The press outside the popover that closed it, by itself or by the focus that it took along. Where it was at
// the item, the item's host hands it on a little later, and then it must not open the popover again; the press
// after it does.
class ClosingPress {
public:
    using Time = std::chrono::steady_clock::time_point;

    // The pointer's place in pixels; nothing where that is not known for sure. What hosts say of places is no
    // help here: many say something else.
    void happened(std::optional<QPoint> pointer, Time when);

    // Whether a press of the item that its host tells of now is the one that closed the popover. Every press
    // comes once, so the one that closed the popover is forgotten with the first question.
    [[nodiscard]] bool isThePressOfTheItem(std::optional<QPoint> pointer, Time when);

private:
    struct Press {
        std::optional<QPoint> pointer;
        Time when;
    };

    std::optional<Press> press_; // none that the item could still be told of
};

} // namespace quelby::app
