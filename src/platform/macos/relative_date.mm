#include "platform/relative_date.h"

#include "platform/macos/foundation_text.h"

namespace quelby {

namespace {

// By itself the formatter would speak a language that this program's bundle has texts in.
void speakTheUsersLanguage(NSRelativeDateTimeFormatter* formatter) {
    NSString* const language = [[NSLocale preferredLanguages] firstObject];
    if (language != nil) {
        [formatter setLocale:[NSLocale localeWithLocaleIdentifier:language]];
    }
}

} // namespace

std::string relativeDate(double date, double now) {
    @autoreleasepool {
        const Own<NSRelativeDateTimeFormatter> formatter([[NSRelativeDateTimeFormatter alloc] init]);
        speakTheUsersLanguage(formatter.get());
        NSString* const phrase =
            [formatter.get() localizedStringForDate:[NSDate dateWithTimeIntervalSince1970:date]
                                     relativeToDate:[NSDate dateWithTimeIntervalSince1970:now]];
        return standardText(phrase).value_or("");
    }
}

} // namespace quelby
