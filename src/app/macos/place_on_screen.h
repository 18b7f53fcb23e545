#pragma once

#include <optional>

#include "app/macos/appkit_names.h"

namespace quelby::app {

// In points from the upper left corner of the primary screen.
struct PlaceOnScreen {
    double x = 0;
    double y = 0;

    bool operator==(const PlaceOnScreen&) const = default;
};

// The middle of the button's lower edge. Nothing where nobody sees the button: in no window, or in one that the
// menu bar has no room for.
[[nodiscard]] std::optional<PlaceOnScreen> placeBelow(NSStatusBarButton* button);

} // namespace quelby::app
