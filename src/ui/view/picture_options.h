#pragma once

namespace quelby {

struct PictureOptions {
    bool settings = false; // instead of the cards
    bool energy = false;   // where it went, instead of the cards
    bool dark = false;
    double scale = 1;      // pixels in a point
    double scrolledTo = 0; // points
};

} // namespace quelby
