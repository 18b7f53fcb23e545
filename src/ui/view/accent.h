#pragma once

#include <cstdint>

namespace quelby {

// The colour (0xRRGGBB), as dark as white text on it needs: 4.5 to 1, or 7 to 1 where more contrast is wanted. Its hue
// stays what it is.
[[nodiscard]] std::uint32_t accentBelowWhite(std::uint32_t color, bool moreContrast);

} // namespace quelby
