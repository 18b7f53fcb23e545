#pragma once

#include <string>

#include "monitor/published_fields.h"

namespace quelby::cli {

// One JSON object on one line, without newline: the keys are the fields' names, in declaration order. Text
// that is not UTF-8 gets replacement characters; a number that is not finite becomes null, as JSON has none.
[[nodiscard]] std::string fieldsAsJson(const PublishedFields& fields);

// The same with what is no field: "minutesToLimit", whole minutes, where there are any.
[[nodiscard]] std::string statusAsJson(const PublishedFields& fields, std::optional<double> minutesToLimit);

} // namespace quelby::cli
