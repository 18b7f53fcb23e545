#include "app/macos/place_on_screen.h"

#import <AppKit/AppKit.h>

namespace quelby::app {

// The system counts upwards from the lower left corner of its first screen.
PlaceOnScreen placeBelow(NSStatusBarButton* button) {
    @autoreleasepool {
        const NSRect inWindow = [button convertRect:[button bounds] toView:nil];
        const NSRect onScreen = [[button window] convertRectToScreen:inWindow];
        NSScreen* const primary = [[NSScreen screens] firstObject];
        return {NSMidX(onScreen), NSMaxY([primary frame]) - NSMinY(onScreen)};
    }
}

} // namespace quelby::app
