// For the doubles of AppKit alone: what they share, and what a person's doings ask of them.
#pragma once

#include <string>
#include <vector>

#import <AppKit/AppKit.h>

#include "macos/doubles/app_kit.h"

namespace quelby::fake {

using KeyMonitor = NSEvent* (^)(NSEvent*);

struct AppKitState {
    AppKit appKit;
    NSEvent* currentEvent = nil;
    NSStatusBarButton* button = nil; // the item's own
    NSPopover* popover = nil;        // the one that was made last
    int items = 0;
    std::vector<KeyMonitor> monitors;
    std::vector<NSObject*> appearanceObservers; // of the application
};

[[nodiscard]] AppKitState& state();

// Adds to the calls.
void note(std::string call);

[[nodiscard]] std::string text(NSString* string);
[[nodiscard]] std::string number(double value);
[[nodiscard]] std::string sizeText(NSSize size);

// Ends the program that misuses the frameworks.
void demand(bool holds, const char* what);

void notify(NSString* name, NSObject* object);

} // namespace quelby::fake

@interface NSEvent (Making)
+ (NSEvent*)ofType:(NSEventType)type flags:(NSUInteger)flags characters:(NSString*)characters;
@end

// An appearance that is dark or light.
@interface ShownAppearance : NSAppearance {
    BOOL dark_;
}
+ (NSAppearance*)thatIsDark:(bool)dark;
@end

@interface NSView (Placing)
- (void)standIn:(NSWindow*)window; // nil: nowhere
@end
