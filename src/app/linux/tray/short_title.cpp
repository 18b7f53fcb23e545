#include "app/linux/tray/short_title.h"

#include <optional>

#include <fmt/format.h>

#include "base/number_text.h"

namespace quelby::app {

namespace {

constexpr double milliamperes = 1000; // in an ampere
constexpr double twoDigits = 9.95;    // from here on there are two before the point

// The number before the unit.
std::optional<double> numberOf(std::string_view title, std::string_view unit) {
    return title.ends_with(unit) ? decimalNumber(title.substr(0, title.size() - unit.size())) : std::nullopt;
}

} // namespace

std::string shortTitle(std::string_view title) {
    if (const auto current = numberOf(title, " mA")) {
        const double amperes = *current / milliamperes;
        return amperes < twoDigits ? fmt::format("{:.1f}A", amperes) : fmt::format("{:.0f}A", amperes);
    }
    if (const auto temperature = numberOf(title, "°C")) {
        return fmt::format("{:.0f}°", *temperature);
    }
    if (const auto voltage = numberOf(title, "V")) {
        return fmt::format("{:.1f}V", *voltage);
    }
    return std::string(title);
}

} // namespace quelby::app
