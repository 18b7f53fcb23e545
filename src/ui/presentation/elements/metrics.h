// What has to be known of the dashboard's look before it is drawn, or by those who draw no dashboard.
#pragma once

#include <string_view>

namespace quelby {

inline constexpr int viewWidth = 400; // points
inline constexpr int viewHeight = 660;

// Its digits are all of one width, so that figures do not dance.
inline constexpr std::string_view fontFamily = "Roboto";

} // namespace quelby
