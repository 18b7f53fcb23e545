#include "platform/macos/apple_script.h"

#import <Foundation/Foundation.h>

#include "platform/macos/foundation_text.h"

namespace quelby {

bool runAppleScript(const std::string& source) {
    @autoreleasepool {
        const auto text = foundationText(source);
        if (text.get() == nil) {
            return false;
        }
        const Own<NSAppleScript> compiled([[NSAppleScript alloc] initWithSource:text.get()]);
        NSDictionary<NSString*, id>* failure = nil;
        NSAppleEventDescriptor* const answer = [compiled.get() executeAndReturnError:&failure];
        return answer != nil && failure == nil;
    }
}

} // namespace quelby
