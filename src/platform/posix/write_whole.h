#pragma once

#include <string_view>

namespace quelby {

// Writes all of the text to the open file, in as many pieces as the system takes. False with errno set where
// that fails; a part may then have been written.
[[nodiscard]] bool writeWhole(int file, std::string_view text);

} // namespace quelby
