// What the machine draws, or what goes into its battery, in large type.
#pragma once

#include <optional>
#include <vector>

#include "monitor/published_fields.h"
#include "ui/presentation/elements.h"

namespace quelby {

struct PowerBadge {
    Symbol symbol;
    std::optional<Text> sign; // before the figure
    Text figure;
    Text unit;
    Text caption;
    std::vector<Label> extra; // empty, or what else the adapter feeds

    bool operator==(const PowerBadge&) const = default;
};

[[nodiscard]] PowerBadge powerBadge(const PublishedFields& fields);

} // namespace quelby
