#pragma once

#include <cstdint>
#include <optional>

namespace quelby {

// How the desktop likes its programs.
struct Appearance {
    bool dark = false;
    bool animated = true;
    bool contrast = false; // more of it than most need
    double textScale = 1;  // 1 to 1.5; everything grows with the text, so that no word is cut

    // The colour of what is chosen or offered, as 0xRRGGBB. The dashboard's own where the desktop has none.
    std::optional<std::uint32_t> accent = std::nullopt;

    bool operator==(const Appearance&) const = default;
};

} // namespace quelby
