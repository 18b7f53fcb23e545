#include "ui/presentation/elements/color.h"

namespace quelby {

std::string_view text(ColorName name) {
    switch (name) {
    case ColorName::primary:
        return "primary";
    case ColorName::secondary:
        return "secondary";
    case ColorName::green:
        return "green";
    case ColorName::yellow:
        return "yellow";
    case ColorName::orange:
        return "orange";
    case ColorName::red:
        return "red";
    case ColorName::blue:
        return "blue";
    case ColorName::purple:
        return "purple";
    case ColorName::cyan:
        return "cyan";
    case ColorName::accent:
        return "accent";
    case ColorName::white:
        return "white";
    }
    return {};
}

Color Color::power(double watts) {
    if (watts < 10) {
        return ColorName::green;
    }
    if (watts < 20) {
        return ColorName::yellow;
    }
    return watts < 30 ? ColorName::orange : ColorName::red;
}

Color Color::battery(std::int64_t percent) {
    if (percent > 60) {
        return ColorName::green;
    }
    if (percent > 40) {
        return ColorName::yellow;
    }
    return percent > 20 ? ColorName::orange : ColorName::red;
}

Color Color::efficiency(std::int64_t score) {
    if (score > 85) {
        return ColorName::green;
    }
    if (score > 70) {
        return ColorName::cyan;
    }
    if (score > 50) {
        return ColorName::yellow;
    }
    return score > 30 ? ColorName::orange : ColorName::red;
}

} // namespace quelby
