// The estimated draw, split into what draws it.
#pragma once

#include "monitor/published_fields.h"
#include "ui/presentation/elements/elements.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_ComponentRow(MEMBER)                                                               \
    MEMBER(part, Text, label)                                                                                \
    MEMBER(part, Bar, bar) /* full at what such a component draws at the most */                             \
    MEMBER(part, Text, figure)                                                                               \
    MEMBER(optional, Text, detail)

struct ComponentRow {
    QUELBY_RECORD(ComponentRow)
};

#define QUELBY_MEMBERS_OF_ComponentCard(MEMBER)                                                              \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(list, ComponentRow, rows)                                                                         \
    MEMBER(part, ComponentRow, total)

struct ComponentCard {
    QUELBY_RECORD(ComponentCard)
};

[[nodiscard]] ComponentCard componentCard(const PublishedFields& fields);

} // namespace quelby
