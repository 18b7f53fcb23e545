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

    // Kept at once, whole or not at all; a failure is silent.
    virtual void setText(std::string_view key, std::string_view value) = 0;
    virtual void setFlag(std::string_view key, bool value) = 0;
    virtual void remove(std::string_view key) = 0;
    virtual void removeAll() = 0; // and with it the store itself
};

} // namespace quelby
