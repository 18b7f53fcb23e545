#pragma once

#include <string>

namespace quelby {

// The date as it is spoken of now, in whole units of the largest that fits and never more of them than there
// are: 13 days ago are "1 week ago". A month counts 30 days here and a year 365. The language is an
// identifier such as "de" or "pt_BR" (Unicode Technical Standard 35); one without phrases of its own gets
// English ones.
[[nodiscard]] std::string relativeDatePhrase(double date, double now, const std::string& language);

// The language that the user's environment asks for.
[[nodiscard]] std::string userLanguage();

} // namespace quelby
