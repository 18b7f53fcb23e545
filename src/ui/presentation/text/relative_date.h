#pragma once

#include <string>

#include "monitor/published_fields.h"

namespace quelby {

// The date as it is spoken of now, in whole units of the largest that fits, rounded to the nearest: "3 days
// ago", "in 2 weeks", "now". A month counts 30 days here and a year 365. The language is an identifier such
// as "de" or "pt_BR" (Unicode Technical Standard 35); one without phrases of its own gets English ones.
[[nodiscard]] std::string relativeDate(Date date, Date now, const std::string& language);

// The language that the user's environment asks for.
[[nodiscard]] std::string userLanguage();

} // namespace quelby
