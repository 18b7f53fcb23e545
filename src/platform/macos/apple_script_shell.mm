#include "platform/macos/apple_script_shell.h"

#import <Foundation/Foundation.h>

#include "platform/macos/foundation_text.h"

namespace quelby {

bool AppleScriptShell::run(const std::string& script) {
    @autoreleasepool {
        const auto source = foundationText(script);
        if (source.get() == nil) {
            return false;
        }
        const Own<NSAppleScript> compiled([[NSAppleScript alloc] initWithSource:source.get()]);
        NSDictionary<NSString*, id>* failure = nil;
        NSAppleEventDescriptor* const answer = [compiled.get() executeAndReturnError:&failure];
        return answer != nil && failure == nil;
    }
}

} // namespace quelby
