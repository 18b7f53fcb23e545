#include "ui/presentation/elements/elements.h"

#include <algorithm>

#include <fmt/format.h>

namespace quelby {

Bar bar(double part, double whole, Color color) {
    const double fraction = part / whole;
    return {fraction > 0 ? std::min(fraction, 1.0) : 0.0, color}; // also 0 where the part is no number
}

std::string percentText(const Bar& bar) {
    return fmt::format("{:.0f}%", bar.fraction * 100);
}

Text primary(std::string text) {
    return {std::move(text), ColorName::primary};
}

Text secondary(std::string text) {
    return {std::move(text), ColorName::secondary};
}

} // namespace quelby
