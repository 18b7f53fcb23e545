#include "platform/macos/foundation_text.h"

namespace quelby {

Own<NSString> foundationText(std::string_view text) {
    return Own<NSString>([[NSString alloc] initWithBytes:text.data()
                                                  length:text.size()
                                                encoding:NSUTF8StringEncoding]);
}

std::optional<std::string> standardText(NSString* text) {
    const char* const bytes = [text UTF8String];
    return bytes == nullptr ? std::nullopt : std::optional<std::string>(bytes);
}

} // namespace quelby
