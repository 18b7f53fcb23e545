#include "app/macos/place_on_screen.h"

#import <AppKit/AppKit.h>

namespace quelby::app {

// The system counts upwards from the lower left corner of its first screen.
std::optional<PlaceOnScreen> placeBelow(NSStatusBarButton* button) {
    @autoreleasepool {
        NSWindow* const window = [button window];
        if ([window isVisible] == NO) {
            return std::nullopt;
        }
        const NSRect inWindow = [button convertRect:[button bounds] toView:nil];
        const NSRect onScreen = [window convertRectToScreen:inWindow];
        NSScreen* const primary = [[NSScreen screens] firstObject];
        return PlaceOnScreen{NSMidX(onScreen), NSMaxY([primary frame]) - NSMinY(onScreen)};
    }
}

} // namespace quelby::app
