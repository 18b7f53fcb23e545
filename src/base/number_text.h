// Numbers from text, never through the locale: a German desktop must neither write 12,5 nor fail to
// read 12.5. (Numbers to text: fmt, whose default formatting ignores the locale.)
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quelby {

// Without blanks and tabs at both ends. Newlines stay.
[[nodiscard]] std::string_view withoutBlanks(std::string_view text);

// The whole text as a finite decimal number (an exponent and a leading sign are fine; hexadecimal numbers,
// "nan" and "inf" are not numbers), or nothing.
[[nodiscard]] std::optional<double> decimalNumber(std::string_view text);

// The whole text as a decimal integer with an optional sign, or nothing; nothing also where it does not fit.
[[nodiscard]] std::optional<std::int64_t> wholeNumber(std::string_view text);

} // namespace quelby
