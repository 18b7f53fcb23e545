#include "platform/relative_date.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

#include <unicode/uloc.h>
#include <unicode/ureldatefmt.h>
#include <unicode/ustring.h>

#include "platform/linux/relative_date_phrase.h"

namespace quelby {

namespace {

struct Unit {
    URelativeDateTimeUnit unit;
    double seconds;
    double most; // of these; what is left over before the next unit begins is not counted
};

constexpr double minute = 60;
constexpr double hour = 60 * minute;
constexpr double day = 24 * hour;
constexpr double furthest = 1e15; // seconds; 30 million years, beyond which a date is nonsense

constexpr std::array units{Unit{UDAT_REL_UNIT_YEAR, 365 * day, HUGE_VAL},
                           Unit{UDAT_REL_UNIT_MONTH, 30 * day, 11},
                           Unit{UDAT_REL_UNIT_WEEK, 7 * day, 4},
                           Unit{UDAT_REL_UNIT_DAY, day, 6},
                           Unit{UDAT_REL_UNIT_HOUR, hour, 23},
                           Unit{UDAT_REL_UNIT_MINUTE, minute, 59},
                           Unit{UDAT_REL_UNIT_SECOND, 1, 59}};

struct Offset {
    double count; // negative in the past
    URelativeDateTimeUnit unit;
};

Offset largestUnit(double seconds) {
    for (const auto& unit : units) {
        const double count = std::trunc(seconds / unit.seconds);
        if (std::fabs(count) >= 1) {
            return {std::clamp(count, -unit.most, unit.most), unit.unit};
        }
    }
    return {0, UDAT_REL_UNIT_SECOND}; // also for a date that is no number
}

std::string languageCode(const char* locale) {
    std::array<char, ULOC_LANG_CAPACITY> code{};
    UErrorCode status = U_ZERO_ERROR;
    uloc_getLanguage(locale, code.data(), code.size(), &status);
    return U_SUCCESS(status) != 0 ? code.data() : "";
}

// Left to itself, the library would take the process's own language in place of one that it does not know.
const char* knownLanguage(const std::string& language) {
    const auto code = languageCode(language.c_str());
    for (std::int32_t i = 0; i < uloc_countAvailable(); ++i) {
        if (languageCode(uloc_getAvailable(i)) == code) {
            return language.c_str();
        }
    }
    return "en";
}

struct CloseFormatter {
    void operator()(URelativeDateTimeFormatter* formatter) const { ureldatefmt_close(formatter); }
};

std::string utf8(const UChar* text, std::int32_t length) {
    std::array<char, 512> bytes{};
    std::int32_t size = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8(bytes.data(), bytes.size(), &size, text, length, &status);
    return U_SUCCESS(status) != 0 ? std::string(bytes.data(), static_cast<std::size_t>(size)) : std::string();
}

} // namespace

std::string relativeDatePhrase(double date, double now, const std::string& language) {
    const auto offset = largestUnit(std::clamp(date - now, -furthest, furthest));
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<URelativeDateTimeFormatter, CloseFormatter> formatter(ureldatefmt_open(
        knownLanguage(language), nullptr, UDAT_STYLE_LONG, UDISPCTX_CAPITALIZATION_NONE, &status));
    if (U_FAILURE(status) != 0) {
        return {}; // only where the library's own data are missing
    }
    // Numbers throughout ("1 day ago", not "yesterday"), save for the present.
    const auto write = offset.count == 0 ? ureldatefmt_format : ureldatefmt_formatNumeric;
    std::array<UChar, 128> phrase{};
    const auto length =
        write(formatter.get(), offset.count, offset.unit, phrase.data(), phrase.size(), &status);
    return U_SUCCESS(status) != 0 ? utf8(phrase.data(), length) : std::string();
}

std::string userLanguage() {
    return uloc_getDefault();
}

std::string relativeDate(double date, double now) {
    return relativeDatePhrase(date, now, userLanguage());
}

} // namespace quelby
