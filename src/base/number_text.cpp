#include "base/number_text.h"

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
