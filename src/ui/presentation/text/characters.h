#pragma once

#include <cstddef>
#include <string_view>

namespace quelby {

// The first characters of a text of well-formed UTF-8, or all of it where there are no more. A character is
// what a person counts as one, however many code points it is made of (extended grapheme clusters, Unicode
// Standard Annex 29).
[[nodiscard]] std::string_view beginning(std::string_view text, std::size_t characters);

} // namespace quelby
