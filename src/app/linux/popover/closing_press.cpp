#include "app/linux/popover/closing_press.h"

#include <utility>

#include "app/linux/popover/press_place.h"

namespace quelby::app {

namespace {

using namespace std::chrono_literals;

constexpr auto longestWay = 500ms; // of a press through the item's host; hosts take their time

} // namespace

void ClosingPress::happened(std::optional<QPoint> pointer, Time when) {
    press_ = Press{pointer, when};
}

bool ClosingPress::isThePressOfTheItem(std::optional<QPoint> pointer, Time when) {
    const auto press = std::exchange(press_, std::nullopt);
    if (!press || when - press->when > longestWay) {
        return false;
    }
    return mayBeOnePlace(pointer, press->pointer);
}

} // namespace quelby::app
