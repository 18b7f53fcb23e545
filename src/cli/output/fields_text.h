#pragma once

#include <string>

#include "monitor/published_fields.h"

namespace quelby::cli {

// All fields for a person: a line a field, its name, its value and its unit; the elements of a list follow on
// lines of their own.
[[nodiscard]] std::string fieldsAsText(const PublishedFields& fields);

// The same, and a line with what is no field: the minutes to the limit, where there are any.
[[nodiscard]] std::string statusAsText(const PublishedFields& fields, std::optional<double> minutesToLimit);

} // namespace quelby::cli
