#include "app/macos/key_monitor.h"

#import <AppKit/AppKit.h>

#include "platform/macos/foundation_text.h"

namespace quelby::app {

namespace {

KeyDown keyDown(NSEvent* event) {
    return {.command = ([event modifierFlags] & NSEventModifierFlagCommand) != 0,
            .characters = standardText([event charactersIgnoringModifiers]).value_or("")};
}

} // namespace

// NOLINTNEXTLINE(performance-unnecessary-value-param): the block copies it, and of a reference only where it lies
void addKeyDownMonitor(std::function<bool(const KeyDown&)> handler) {
    @autoreleasepool {
        [NSEvent addLocalMonitorForEventsMatchingMask:NSEventMaskKeyDown
                                              handler:^NSEvent*(NSEvent* event) {
                                                return handler(keyDown(event)) ? nil : event;
                                              }];
    }
}

} // namespace quelby::app
