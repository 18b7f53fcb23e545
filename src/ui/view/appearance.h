#pragma once

namespace quelby {

// How the desktop likes its programs.
struct Appearance {
    bool dark = false;
    bool animated = true;

    bool operator==(const Appearance&) const = default;
};

} // namespace quelby
