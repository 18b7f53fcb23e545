#include "monitor/listing_lines.h"

#include "base/number_text.h"

namespace quelby {

void ListingLines::dropFirstLine() {
    const auto newline = rest_->find('\n');
    if (newline == std::string_view::npos) {
        rest_.reset();
    } else {
        rest_->remove_prefix(newline + 1);
    }
}

std::optional<std::string_view> ListingLines::next() {
    if (!rest_) {
        return std::nullopt;
    }
    const auto line = rest_->substr(0, rest_->find('\n'));
    dropFirstLine();
    return withoutBlanks(line);
}

} // namespace quelby
