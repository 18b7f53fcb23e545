#include <cstdio>
#include <cstdlib>

#include <Block.h>

#import "macos/doubles/app_kit_state.h"

namespace quelby::fake {

AppKitState& state() {
    static AppKitState state;
    return state;
}

void note(std::string call) {
    state().appKit.calls.push_back(std::move(call));
}

std::string text(NSString* string) {
    return string == nil ? "nil" : std::string([string UTF8String]);
}

std::string number(double value) {
    return std::to_string(static_cast<int>(value));
}

std::string sizeText(NSSize size) {
    return number(size.width) + "x" + number(size.height);
}

void demand(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "Misused: %s.\n", what);
        std::abort();
    }
}

void notify(NSString* name, NSObject* object) {
    @autoreleasepool {
        [[NSNotificationCenter defaultCenter] postNotificationName:name object:object];
    }
}

AppKit& appKit() {
    return state().appKit;
}

void startAnew() {
    for (const auto monitor : state().monitors) {
        Block_release(monitor);
    }
    state().monitors.clear();
    state().appKit = {};
}

int itemsInTheBar() {
    return state().items;
}

} // namespace quelby::fake

using namespace quelby::fake;

NSString* NSApplicationDidFinishLaunchingNotification = @"NSApplicationDidFinishLaunchingNotification";
NSString* NSApplicationWillTerminateNotification = @"NSApplicationWillTerminateNotification";
NSString* const NSAppearanceNameAqua = @"NSAppearanceNameAqua";
NSString* const NSAppearanceNameDarkAqua = @"NSAppearanceNameDarkAqua";

@implementation NSAppearance
@end

@implementation ShownAppearance

+ (NSAppearance*)thatIsDark:(bool)dark {
    ShownAppearance* const appearance = [[[ShownAppearance alloc] init] autorelease];
    appearance->dark_ = dark ? YES : NO;
    return appearance;
}

- (NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray*)names {
    NSString* const name = dark_ != NO ? NSAppearanceNameDarkAqua : NSAppearanceNameAqua;
    return [names containsObject:name] != NO ? name : nil;
}

@end

@implementation NSEvent

+ (NSEvent*)ofType:(NSEventType)type flags:(NSUInteger)flags characters:(NSString*)characters {
    NSEvent* const event = [[[NSEvent alloc] init] autorelease];
    event->event_type = type;
    event->modifier_flags = flags;
    event->event_data.key.unmodified_keys = characters;
    return event;
}

+ (id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(NSEvent* (^)(NSEvent*))handler {
    demand(mask == NSEventMaskKeyDown, "a monitor of anything but pressed keys");
    state().monitors.push_back(Block_copy(handler));
    return [[[NSObject alloc] init] autorelease];
}

- (NSEventType)type {
    return event_type;
}

- (NSEventModifierFlags)modifierFlags {
    return modifier_flags;
}

- (NSString*)charactersIgnoringModifiers {
    demand(event_type == NSEventTypeKeyDown, "characters of an event that is no key's");
    return event_data.key.unmodified_keys;
}

@end

@implementation NSResponder
@end

@implementation NSApplication

+ (NSApplication*)sharedApplication {
    static NSApplication* const application = [[NSApplication alloc] init];
    return application;
}

- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy {
    note(policy == NSApplicationActivationPolicyAccessory ? "setActivationPolicy accessory"
                                                          : "setActivationPolicy another");
    return YES;
}

- (NSAppearance*)effectiveAppearance {
    return [ShownAppearance thatIsDark:appKit().systemIsDark];
}

- (NSEvent*)currentEvent {
    return state().currentEvent;
}

- (void)activateIgnoringOtherApps:(BOOL)ignoring {
    note(ignoring != NO ? "activateIgnoringOtherApps" : "activate");
}

- (void)terminate:(id)sender {
    note("terminate");
}

@end

@implementation NSScreen

+ (NSArray*)screens {
    return [NSArray
        arrayWithObjects:[[[NSScreen alloc] init] autorelease], [[[NSScreen alloc] init] autorelease], nil];
}

- (NSRect)frame {
    return NSMakeRect(0, 0, 1440, 900);
}

@end

@implementation NSWorkspace (Accessibility)

- (BOOL)accessibilityDisplayShouldReduceMotion {
    return appKit().reducesMotion ? YES : NO;
}

@end

namespace quelby::fake {

bool keyComesThrough(const std::string& characters, bool command) {
    @autoreleasepool {
        NSEvent* const event = [NSEvent ofType:NSEventTypeKeyDown
                                         flags:command ? NSEventModifierFlagCommand : 0
                                    characters:[NSString stringWithUTF8String:characters.c_str()]];
        for (const auto monitor : state().monitors) {
            if (monitor(event) != event) {
                return false;
            }
        }
        return true;
    }
}

void finishLaunching() {
    notify(NSApplicationDidFinishLaunchingNotification, [NSApplication sharedApplication]);
}

void willTerminate() {
    notify(NSApplicationWillTerminateNotification, [NSApplication sharedApplication]);
}

} // namespace quelby::fake
