#include "ui/presentation/text/characters.h"

#include <memory>

#include <unicode/ubrk.h>
#include <unicode/utext.h>

namespace quelby {

namespace {

struct CloseText {
    void operator()(UText* text) const { utext_close(text); }
};

struct CloseIterator {
    void operator()(UBreakIterator* iterator) const { ubrk_close(iterator); }
};

} // namespace

std::string_view beginning(std::string_view text, std::size_t characters) {
    if (text.size() <= characters) {
        return text; // no character has less than one byte
    }
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UText, CloseText> utf8(
        utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status));
    const std::unique_ptr<UBreakIterator, CloseIterator> iterator(
        ubrk_open(UBRK_CHARACTER, "", nullptr, 0, &status));
    ubrk_setUText(iterator.get(), utf8.get(), &status);
    if (U_FAILURE(status) != 0) {
        return text.substr(0, characters); // only where the library's own data are missing
    }
    std::int32_t end = 0;
    for (std::size_t count = 0; count < characters && end != UBRK_DONE; ++count) {
        end = ubrk_next(iterator.get());
    }
    return end == UBRK_DONE ? text : text.substr(0, static_cast<std::size_t>(end));
}

} // namespace quelby
