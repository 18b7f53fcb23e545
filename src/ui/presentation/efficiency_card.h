#pragma once

#include "monitor/published_fields.h"
#include "ui/presentation/elements.h"

namespace quelby {

struct EfficiencyCard {
    Symbol symbol;
    Text title;
    Text score;
    Text outOf;
    std::string stars; // five, filled or not
    Text rating;
    Label advice;

    bool operator==(const EfficiencyCard&) const = default;
};

[[nodiscard]] EfficiencyCard efficiencyCard(const PublishedFields& fields);

} // namespace quelby
