#pragma once

#include <string>
#include <string_view>

#include "monitor/published_fields.h"
#include "ui/presentation/elements/elements.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_ProcessRow(MEMBER)                                                                 \
    MEMBER(part, Text, position)                                                                             \
    MEMBER(part, Text, name)                                                                                 \
    MEMBER(part, Text, cpu)                                                                                  \
    MEMBER(part, Text, watts)

struct ProcessRow {
    QUELBY_RECORD(ProcessRow)
};

#define QUELBY_MEMBERS_OF_ProcessCard(MEMBER)                                                                \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(optional, Text, placeholder) /* in place of the rows, while there are none */                     \
    MEMBER(list, ProcessRow, rows)

struct ProcessCard {
    QUELBY_RECORD(ProcessCard)
};

[[nodiscard]] ProcessCard processCard(const PublishedFields& fields);

// The name as the card shows it: of more than 20 characters the first 19 and "~". A character is what a
// person counts as one (a grapheme cluster of Unicode Standard Annex 29); one that cannot be printed becomes
// "?".
[[nodiscard]] std::string shownName(std::string_view name);

} // namespace quelby
