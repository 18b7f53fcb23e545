#pragma once

#include <string_view>

namespace quelby {

// Of the program, as in "1.0".
[[nodiscard]] std::string_view version();

} // namespace quelby
