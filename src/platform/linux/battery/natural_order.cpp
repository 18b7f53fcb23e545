#include "platform/linux/battery/natural_order.h"

#include <algorithm>
#include <tuple>

namespace quelby {

namespace {

bool isDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

// Takes the digits at the front, without leading zeros: of two such numbers the longer is the greater.
std::string_view takeNumber(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    auto number = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(number.size());
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

} // namespace

bool comesBefore(std::string_view first, std::string_view second) {
    auto a = first;
    auto b = second;
    while (!a.empty() && !b.empty()) {
        if (isDigit(a[0]) && isDigit(b[0])) {
            const auto numberA = takeNumber(a);
            const auto numberB = takeNumber(b);
            if (numberA != numberB) {
                return std::tuple(numberA.size(), numberA) < std::tuple(numberB.size(), numberB);
            }
        } else if (a[0] != b[0]) {
            return a[0] < b[0];
        } else {
            a.remove_prefix(1);
            b.remove_prefix(1);
        }
    }
    return std::tuple(a.size(), first) < std::tuple(b.size(), second);
}

} // namespace quelby
