#pragma once

#include <optional>
#include <string>

namespace quelby {

// The family of the font that the system's own programs are written in, where every program is expected to be.
// Nothing where each has its own. The build picks the system's.
[[nodiscard]] std::optional<std::string> interfaceFontFamily();

} // namespace quelby
