#include "app/linux/popover/closing_press.h"

#include <utility>

namespace quelby::app {

namespace {

using namespace std::chrono_literals;

constexpr auto longestWay = 500ms; // of a press through the item's host; hosts take their time
constexpr int farthestPixels = 32; // between the pointer and what the host says of it

} // namespace

void ClosingPress::happened(QPoint where, Time when) {
    press_ = Press{where, when};
}

bool ClosingPress::isThePressOfTheItem(std::optional<QPoint> where, Time when) {
    const auto press = std::exchange(press_, std::nullopt);
    if (!press || when - press->when > longestWay) {
        return false;
    }
    return !where || (*where - press->where).manhattanLength() <= farthestPixels;
}

} // namespace quelby::app
