#pragma once

#include <string>

#include "cli/arguments/title_template.h"
#include "monitor/published_fields.h"

namespace quelby::cli {

// One line without its newline, with the figures at their places: numbers without units, as the title rounds them;
// nothing for what this computer has not, such as the level of a battery, or a limit that is off.
[[nodiscard]] std::string filledTemplate(const TitleTemplate& pieces, const PublishedFields& fields);

} // namespace quelby::cli
