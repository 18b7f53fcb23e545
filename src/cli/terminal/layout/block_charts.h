// Bars and curves from the block characters of Unicode, which divide a character cell into eighths.
#pragma once

#include <vector>

#include "cli/terminal/layout/styled_line.h"

namespace quelby::cli {

// The bar over its track, this many columns long.
[[nodiscard]] Line barLine(const Bar& bar, int columns);

// The row of a slider: the part up to the knob, the knob, and the rest.
[[nodiscard]] Line sliderLine(double fraction, Color color, int columns);

// The filled curve of the values on a scale from their smallest to their largest, from left to right in the
// colours of the gradient. Every column shows the mean of the values that fall into it; where there are more
// columns than values, a value takes several.
[[nodiscard]] Block curve(const std::vector<double>& values, int columns, int rows);

} // namespace quelby::cli
