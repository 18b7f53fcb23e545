#pragma once

#include <string_view>

namespace quelby {

// Whether the first name comes before the second as people count: BAT2 before BAT10. A strict total order.
[[nodiscard]] bool comesBefore(std::string_view first, std::string_view second);

} // namespace quelby
