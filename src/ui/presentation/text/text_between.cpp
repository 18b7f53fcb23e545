#include "ui/presentation/text/text_between.h"

#include <algorithm>
#include <optional>

#include <fmt/format.h>

#include "base/number_text.h"

namespace quelby {

namespace {

constexpr std::string_view digits = "0123456789";

struct Figure {
    std::string_view before;
    double number = 0;
    int decimals = 0;
    std::string_view behind;
};

std::optional<Figure> figureIn(std::string_view text) {
    const auto start = text.find_first_of(digits);
    if (start == std::string_view::npos) {
        return std::nullopt;
    }
    const auto end = std::min(text.find_first_not_of("0123456789.", start), text.size());
    const auto number = text.substr(start, end - start);
    const auto value = decimalNumber(number);
    if (!value || text.find_first_of(digits, end) != std::string_view::npos) {
        return std::nullopt;
    }
    const auto point = number.find('.');
    const auto decimals = point == std::string_view::npos ? 0 : number.size() - point - 1;
    return Figure{text.substr(0, start), *value, static_cast<int>(decimals), text.substr(end)};
}

} // namespace

std::string textBetween(std::string_view from, std::string_view to, double progress) {
    const auto start = figureIn(from);
    const auto end = figureIn(to);
    const bool glides = start && end && start->before == end->before && start->behind == end->behind;
    if (!glides || progress >= 1) {
        return std::string(to);
    }
    const double number = start->number + (end->number - start->number) * std::max(progress, 0.0);
    return fmt::format("{}{:.{}f}{}", end->before, number, end->decimals, end->behind);
}

} // namespace quelby
