#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <fmt/format.h>

namespace quelby::cli {

// A text as RFC 4180 wants it.
[[nodiscard]] inline std::string csvField(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
        return std::string(text);
    }
    std::string quoted = "\"";
    for (const char character : text) {
        quoted += character == '"' ? "\"\"" : std::string(1, character);
    }
    return quoted + '"';
}

// A number, or nothing between the commas.
template <typename T>
[[nodiscard]] std::string csvField(const std::optional<T>& value) {
    return value ? fmt::format("{}", *value) : std::string();
}

} // namespace quelby::cli
