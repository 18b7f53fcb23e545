#pragma once

#include <chrono>
#include <optional>

#include <QPoint>

namespace quelby::app {

// The press outside the popover that closed it. Where it was at the item, the item's host hands it on a
// little later, and then it must not open the popover again; the press after it does.
class ClosingPress {
public:
    using Time = std::chrono::steady_clock::time_point;

    // In pixels of the screen.
    void happened(QPoint where, Time when);

    // Whether a press of the item, as its host tells of it, is the one that closed the popover. The place is
    // where the item was pressed; nothing where that is not known. Every press comes once, so the one that
    // closed the popover is forgotten with the first question.
    [[nodiscard]] bool isThePressOfTheItem(std::optional<QPoint> where, Time when);

private:
    struct Press {
        QPoint where;
        Time when;
    };

    std::optional<Press> press_; // none that the item could still be told of
};

} // namespace quelby::app
