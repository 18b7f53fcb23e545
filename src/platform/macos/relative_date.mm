#include "platform/relative_date.h"

#include "platform/macos/foundation_text.h"

namespace quelby {

std::string relativeDate(double date, double now) {
    @autoreleasepool {
        const Own<NSRelativeDateTimeFormatter> formatter([[NSRelativeDateTimeFormatter alloc] init]);
        NSString* const phrase =
            [formatter.get() localizedStringForDate:[NSDate dateWithTimeIntervalSince1970:date]
                                     relativeToDate:[NSDate dateWithTimeIntervalSince1970:now]];
        return standardText(phrase).value_or("");
    }
}

} // namespace quelby
