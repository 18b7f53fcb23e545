#include "ui/view/accent.h"

#include <array>
#include <cmath>

namespace quelby {

namespace {

constexpr double readable = 4.5;
constexpr double easilyReadable = 7;
constexpr int steps = 256; // from the colour to black

std::array<double, 3> parts(std::uint32_t color) {
    return {static_cast<double>((color >> 16U) & 0xFFU), static_cast<double>((color >> 8U) & 0xFFU),
            static_cast<double>(color & 0xFFU)};
}

double linear(double part) {
    const double share = part / 255;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

// As the Web Content Accessibility Guidelines 2 count it.
double contrastWithWhite(std::uint32_t color) {
    const auto [red, green, blue] = parts(color);
    return 1.05 / (0.2126 * linear(red) + 0.7152 * linear(green) + 0.0722 * linear(blue) + 0.05);
}

std::uint32_t darkened(std::uint32_t color, double factor) {
    std::uint32_t result = 0;
    for (const double part : parts(color)) {
        result = result << 8U | static_cast<std::uint32_t>(std::floor(part * factor));
    }
    return result;
}

} // namespace

std::uint32_t accentBelowWhite(std::uint32_t color, bool moreContrast) {
    const double least = moreContrast ? easilyReadable : readable;
    for (int step = 0; step < steps; ++step) {
        const auto candidate = darkened(color, 1 - static_cast<double>(step) / steps);
        if (contrastWithWhite(candidate) >= least) {
            return candidate;
        }
    }
    return 0;
}

} // namespace quelby
