#pragma once

#include <optional>
#include <string_view>

#include "history/energy/energy_records.h"

namespace quelby {

// "discharge", "charge" or "calibration": how a kind is called in the database, and by other programs.
[[nodiscard]] std::string_view rawValue(SessionKind kind);

[[nodiscard]] std::optional<SessionKind> sessionKind(std::string_view rawValue);

} // namespace quelby
