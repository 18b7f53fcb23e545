#pragma once

#include "monitor/published_fields.h"
#include "ui/presentation/elements/elements.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_EfficiencyCard(MEMBER)                                                             \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Text, score)                                                                                \
    MEMBER(part, Text, outOf)                                                                                \
    MEMBER(words, std::string, stars) /* five, filled or not */                                              \
    MEMBER(part, Text, rating)                                                                               \
    MEMBER(part, Label, advice)

struct EfficiencyCard {
    QUELBY_RECORD(EfficiencyCard)
};

[[nodiscard]] EfficiencyCard efficiencyCard(const PublishedFields& fields);

} // namespace quelby
