// The characters that fill a cell by eighths, from none to all of it.
#pragma once

#include <array>

namespace quelby::cli {

inline constexpr int eighths = 8;
inline constexpr std::array<const char*, eighths + 1> barCells{"", "▏", "▎", "▍", "▌", "▋", "▊", "▉", "█"};
inline constexpr std::array<const char*, eighths + 1> columnCells{" ", "▁", "▂", "▃", "▄",
                                                                  "▅", "▆", "▇", "█"};

} // namespace quelby::cli
