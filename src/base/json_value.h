#pragma once

#include <optional>

#include <nlohmann/json.hpp>

namespace quelby {

// null where there is none.
template <typename T>
[[nodiscard]] nlohmann::ordered_json orNull(const std::optional<T>& value) {
    return value ? nlohmann::ordered_json(*value) : nlohmann::ordered_json(nullptr);
}

} // namespace quelby
