// Integer arithmetic that ends at the edge of the range instead of leaving it. Real machines come nowhere
// near; a damaged recording may.
#pragma once

#include <cstdint>
#include <limits>

namespace quelby {

// Toward zero. Not a number gives 0.
[[nodiscard]] constexpr std::int64_t truncated(double number) {
    constexpr double beyond = 9223372036854775808.0; // 2^63
    if (number >= beyond) {
        return std::numeric_limits<std::int64_t>::max();
    }
    if (number <= -beyond) {
        return std::numeric_limits<std::int64_t>::min();
    }
    return number == number ? static_cast<std::int64_t>(number) : 0;
}

[[nodiscard]] constexpr std::int64_t difference(std::int64_t minuend, std::int64_t subtrahend) {
    std::int64_t result = 0;
    if (!__builtin_sub_overflow(minuend, subtrahend, &result)) {
        return result;
    }
    return minuend < 0 ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
}

// part * 100 / whole, truncating, and 100 at the most. The whole is positive; there is no lower bound.
[[nodiscard]] constexpr std::int64_t percentage(std::int64_t part, std::int64_t whole) {
    if (part >= whole) {
        return 100;
    }
    std::int64_t hundredfold = 0;
    if (!__builtin_mul_overflow(part, 100, &hundredfold)) {
        return hundredfold / whole;
    }
    return truncated(static_cast<double>(part) * 100.0 / static_cast<double>(whole));
}

} // namespace quelby
