#pragma once

#include <string>
#include <string_view>

namespace quelby {

// A figure on its way from one text to another: the number in it is as far between the two as `progress` says
// (0 to 1), with as many decimals as the second has. Texts that differ in more than their one number, or have
// none, do not glide: the second is shown at once.
[[nodiscard]] std::string textBetween(std::string_view from, std::string_view to, double progress);

} // namespace quelby
