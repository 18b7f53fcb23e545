#include "app/linux/popover/opening_press.h"

#include "app/linux/popover/press_place.h"

namespace quelby::app {

void OpeningPress::happened(std::optional<QPoint> pointer, Time when, std::chrono::milliseconds doublePress) {
    pointer_ = pointer;
    end_ = when + doublePress;
}

bool OpeningPress::goesOn(std::optional<QPoint> pointer, Time when) const {
    return when < end_ && mayBeOnePlace(pointer_, pointer);
}

} // namespace quelby::app
