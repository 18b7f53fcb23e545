#pragma once

#include <string_view>

namespace quelby {

// Of the program, whole ("1.0.0") and as people are shown it ("1.0").
[[nodiscard]] std::string_view version();
[[nodiscard]] std::string_view shortVersion();

} // namespace quelby
