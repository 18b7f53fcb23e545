#include "monitor/listing_lines.h"

#include "base/number_text.h"

namespace quelby {

std::string_view ListingLines::takeFirstLine() {
    const auto newline = rest_->find('\n');
    const auto line = rest_->substr(0, newline);
    if (newline == std::string_view::npos) {
        rest_.reset();
    } else {
        rest_->remove_prefix(newline + 1);
    }
    return line;
}

std::optional<std::string_view> ListingLines::next() {
    return rest_ ? std::optional(withoutBlanks(takeFirstLine())) : std::nullopt;
}

} // namespace quelby
