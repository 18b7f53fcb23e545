#include "limiter/mechanisms/values.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "base/number_text.h"
#include "limiter/charge_levels.h"

namespace quelby::limiter {

std::optional<int> levelFrom(std::string_view text) {
    const auto value = wholeNumber(text);
    return value && *value >= 0 && *value <= fullLevel ? std::optional(static_cast<int>(*value))
                                                       : std::nullopt;
}

std::optional<int> percentIn(const Attributes& attributes, const std::string& attribute) {
    const auto text = attributes.read(attribute);
    return text ? levelFrom(*text) : std::nullopt;
}

std::vector<int> percentsIn(const Attributes& attributes, const std::string& attribute) {
    std::vector<int> values;
    std::istringstream words(attributes.read(attribute).value_or(""));
    for (std::string word; words >> word;) {
        if (const auto value = levelFrom(word)) {
            values.push_back(*value);
        }
    }
    std::sort(values.begin(), values.end());
    return values;
}

int nearest(const std::vector<int>& values, int wished) {
    return *std::min_element(values.begin(), values.end(), [&](int one, int other) {
        return std::abs(one - wished) < std::abs(other - wished);
    });
}

Problem refusal(const std::string& attribute, const std::string& value, std::error_code reason) {
    const std::filesystem::path path(attribute);
    auto sentence = (path.parent_path().filename() / path.filename()).string() + " did not take " + value +
                    ": " + reason.message();
    if (reason == std::errc::permission_denied || reason == std::errc::operation_not_permitted) {
        sentence += " (a password of the firmware's setup may forbid it)";
    }
    return {sentence};
}

Result<void> writeValue(Attributes& attributes, const std::string& attribute, const std::string& value) {
    if (const auto failure = attributes.write(attribute, value)) {
        return tl::make_unexpected(refusal(attribute, value, failure));
    }
    return {};
}

} // namespace quelby::limiter
