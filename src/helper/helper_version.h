#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quelby {

// The version that the text of `details.json` names. Nothing where there is no such text, it is no JSON object
// that JsonRecord accepts, or it names none: the first helpers did not.
[[nodiscard]] std::optional<std::string> helperVersion(const std::optional<std::string>& details);

// Whether the helper of that text and a program of that version belong together.
[[nodiscard]] bool isHelperOf(const std::optional<std::string>& details, std::string_view version);

} // namespace quelby
