// Percentages in attributes, and writing with the reason when it is refused.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/problem.h"
#include "limiter/kernel/attributes.h"

namespace quelby::limiter {

// Nothing where it is anything but 0 to 100: some firmware gives -10 before it was first set.
[[nodiscard]] std::optional<int> levelFrom(std::string_view text);

// Nothing where the attribute cannot be read, or holds no level.
[[nodiscard]] std::optional<int> percentIn(const Attributes& attributes, const std::string& attribute);

// The values of a list such as "60 70 80 90 100", in rising order; empty where there is none.
[[nodiscard]] std::vector<int> percentsIn(const Attributes& attributes, const std::string& attribute);

// Of two equally near ones the lower. The list is not empty.
[[nodiscard]] int nearest(const std::vector<int>& values, int wished);

// "BAT0/charge_control_end_threshold did not take 80: Invalid argument"
[[nodiscard]] Problem refusal(const std::string& attribute, const std::string& value, std::error_code reason);

[[nodiscard]] Result<void> writeValue(Attributes& attributes, const std::string& attribute,
                                      const std::string& value);

} // namespace quelby::limiter
