#pragma once

#include <string_view>

namespace quelby::cli {

// A character, one column wide, in place of the symbol; a dot for one that has none.
[[nodiscard]] std::string_view glyph(std::string_view symbolName);

} // namespace quelby::cli
