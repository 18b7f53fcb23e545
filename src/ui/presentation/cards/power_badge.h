// What the machine draws, or what goes into its battery, in large type.
#pragma once

#include "monitor/published_fields.h"
#include "ui/presentation/elements/elements.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_PowerBadge(MEMBER)                                                                 \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(optional, Text, sign) /* before the figure */                                                     \
    MEMBER(part, Text, figure)                                                                               \
    MEMBER(part, Text, unit)                                                                                 \
    MEMBER(part, Text, caption)                                                                              \
    MEMBER(list, Label, extra) /* empty, or what else the adapter feeds */

struct PowerBadge {
    QUELBY_RECORD(PowerBadge)
};

[[nodiscard]] PowerBadge powerBadge(const PublishedFields& fields);

} // namespace quelby
