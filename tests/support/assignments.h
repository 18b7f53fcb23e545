#pragma once

#include <string>
#include <vector>

#include "monitor/published_fields.h"

namespace quelby {

// The names of the fields that the action assigns, in order; also of those that keep their value.
template <typename Action>
std::vector<std::string> assignedDuring(PublishedFields& fields, const Action& action) {
    std::vector<std::string> names;
    std::vector<Subscription> subscriptions;
    forEachField(fields, [&](FieldName field, auto& published) {
        subscriptions.push_back(published.observe(
            [&names, name = std::string(field.name)](const auto&) { names.push_back(name); }));
    });
    action();
    return names;
}

} // namespace quelby
