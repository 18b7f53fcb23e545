#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "monitor/published_fields.h"
#include "ui/presentation/elements.h"

namespace quelby {

struct ProcessRow {
    Text position;
    Text name;
    Text cpu;
    Text watts;

    bool operator==(const ProcessRow&) const = default;
};

struct ProcessCard {
    Symbol symbol;
    Text title;
    std::optional<Text> placeholder; // in place of the rows, while there are none
    std::vector<ProcessRow> rows;

    bool operator==(const ProcessCard&) const = default;
};

[[nodiscard]] ProcessCard processCard(const PublishedFields& fields);

// The name as the card shows it: of more than 20 characters the first 19 and "~". A character is what a
// person counts as one (a grapheme cluster of Unicode Standard Annex 29); one that cannot be printed becomes
// "?".
[[nodiscard]] std::string shownName(std::string_view name);

} // namespace quelby
