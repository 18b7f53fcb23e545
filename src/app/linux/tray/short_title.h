#pragma once

#include <string>
#include <string_view>

namespace quelby::app {

// The title as it can be read in a small square: "1520 mA" as "1.5A", "31.4°C" as "31°", "12.61V" as "12.6V".
// Every other one stays as it is. Without the leading blank.
[[nodiscard]] std::string shortTitle(std::string_view title);

} // namespace quelby::app
