#pragma once

#include <optional>
#include <string_view>

namespace quelby {

// The data lines of a listing: what stands between newline characters, less the heading, without blanks and
// tabs at both ends. Text after the last newline is a line too, be it empty.
class ListingLines {
public:
    explicit ListingLines(std::string_view listing) : rest_(listing) { takeFirstLine(); }

    [[nodiscard]] std::optional<std::string_view> next();

private:
    std::string_view takeFirstLine();

    std::optional<std::string_view> rest_;
};

} // namespace quelby
