#pragma once

#include <optional>

namespace quelby {

// In sRGB, each from 0 to 1.
struct AccentColor {
    double red = 0;
    double green = 0;
    double blue = 0;

    bool operator==(const AccentColor&) const = default;
};

// How the desktop likes its programs.
struct Appearance {
    bool dark = false;
    bool animated = true;
    bool contrast = false; // more of it than most need
    double textScale = 1;  // 1 to 1.5; everything grows with the text, so that no word is cut
    bool translucent = false; // what the dashboard lies on shines through, blurred by whoever draws that
    std::optional<AccentColor> accent; // the user's; none: the dashboard's own

    bool operator==(const Appearance&) const = default;
};

} // namespace quelby
