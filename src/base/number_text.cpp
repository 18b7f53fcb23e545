#include "base/number_text.h"

#include <array>
#include <charconv>
#include <cmath>

#include <fast_float/fast_float.h>

namespace quelby {

namespace {

bool isBlank(char character) {
    return character == ' ' || character == '\t';
}

// Both parsers know a minus sign only.
std::string_view withoutPlusSign(std::string_view text) {
    const bool plus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return plus ? text.substr(1) : text;
}

// Digits with a point among them, as every line of a listing has them. So few that they and the power of ten
// are exact, and that their quotient is what rounds to nearest: nothing else can come out of the long way.
std::optional<double> shortDecimal(std::string_view text) {
    constexpr std::array powersOfTen{1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8};
    std::uint32_t digits = 0;
    std::size_t behindPoint = 0;
    bool hasPoint = false;
    if (text.empty() || text.size() >= powersOfTen.size() || text.front() == '.' || text.back() == '.') {
        return std::nullopt;
    }
    for (const char character : text) {
        if (character >= '0' && character <= '9') {
            digits = digits * 10 + static_cast<std::uint32_t>(character - '0');
            behindPoint += hasPoint ? 1 : 0;
        } else if (character == '.' && !hasPoint) {
            hasPoint = true;
        } else {
            return std::nullopt;
        }
    }
    return digits / powersOfTen.at(behindPoint);
}

} // namespace

std::string_view withoutBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::optional<double> decimalNumber(std::string_view text) {
    if (const auto number = shortDecimal(text)) {
        return number;
    }
    text = withoutPlusSign(text);
    double number = 0;
    const auto* const end = text.data() + text.size();
    const auto [stop, error] = fast_float::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end || !std::isfinite(number)) {
        return std::nullopt;
    }
    return number;
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    text = withoutPlusSign(text);
    std::int64_t number = 0;
    const auto* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end) {
        return std::nullopt;
    }
    return number;
}

} // namespace quelby
