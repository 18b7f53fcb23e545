#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quelby {

// The user's choices, by key. A value of another type counts as absent.
class Preferences {
public:
    virtual ~Preferences() = default;

    [[nodiscard]] virtual std::optional<std::string> text(std::string_view key) = 0;
    [[nodiscard]] virtual bool flag(std::string_view key) = 0; // false when absent
};

} // namespace quelby
