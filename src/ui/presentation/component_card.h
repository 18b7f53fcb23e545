// The estimated draw, split into what draws it.
#pragma once

#include <optional>
#include <vector>

#include "monitor/published_fields.h"
#include "ui/presentation/elements.h"

namespace quelby {

struct ComponentRow {
    Text label;
    Bar bar; // full at what such a component draws at the most
    Text figure;
    std::optional<Text> detail;

    bool operator==(const ComponentRow&) const = default;
};

struct ComponentCard {
    Text title;
    std::vector<ComponentRow> rows;
    ComponentRow total;

    bool operator==(const ComponentCard&) const = default;
};

[[nodiscard]] ComponentCard componentCard(const PublishedFields& fields);

} // namespace quelby
