#pragma once

namespace quelby {

// How the desktop likes its programs.
struct Appearance {
    bool dark = false;
    bool animated = true;
    bool contrast = false; // more of it than most need
    double textScale = 1;  // 1 to 1.5; everything grows with the text, so that no word is cut

    bool operator==(const Appearance&) const = default;
};

} // namespace quelby
