// The colours of the dashboard, by their meaning. What they look like, in light and in dark, is the business
// of whoever draws them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace quelby {

enum class ColorName { primary, secondary, green, yellow, orange, red, blue, purple, cyan, accent, white };

inline constexpr std::array allColorNames{ColorName::primary, ColorName::secondary, ColorName::green,
                                          ColorName::yellow,  ColorName::orange,    ColorName::red,
                                          ColorName::blue,    ColorName::purple,    ColorName::cyan,
                                          ColorName::accent,  ColorName::white};

// "primary", "secondary" and so on.
[[nodiscard]] std::string_view text(ColorName name);

struct Color {
    ColorName name = ColorName::primary;
    double opacity = 1; // 0 to 1

    // NOLINTNEXTLINE(google-explicit-constructor): most colours are nothing but their name
    constexpr Color(ColorName colorName, double colorOpacity = 1) : name(colorName), opacity(colorOpacity) {}

    constexpr Color() = default;

    // The scales: a value on a boundary belongs to the next band. Watts that are no number are red.
    [[nodiscard]] static Color power(double watts);
    [[nodiscard]] static Color battery(std::int64_t percent);
    [[nodiscard]] static Color efficiency(std::int64_t score); // 0 to 100

    bool operator==(const Color&) const = default;
};

} // namespace quelby
