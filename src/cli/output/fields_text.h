#pragma once

#include <string>

#include "monitor/published_fields.h"

namespace quelby::cli {

// All fields for a person: a line a field, its name, its value and its unit; the elements of a list follow on
// lines of their own.
[[nodiscard]] std::string fieldsAsText(const PublishedFields& fields);

} // namespace quelby::cli
