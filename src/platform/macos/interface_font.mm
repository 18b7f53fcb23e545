#include "platform/interface_font.h"

#import <AppKit/AppKit.h>

#include "platform/macos/foundation_text.h"

namespace quelby {

std::optional<std::string> interfaceFontFamily() {
    @autoreleasepool {
        return standardText([[NSFont systemFontOfSize:0] familyName]); // 0: of the usual size
    }
}

} // namespace quelby
