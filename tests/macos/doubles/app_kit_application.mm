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

- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(void*)context {
    demand([keyPath isEqualToString:@"effectiveAppearance"] != NO, "a property that nobody watches");
    state().appearanceObservers.push_back(observer);
}

- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath {
    demand([keyPath isEqualToString:@"effectiveAppearance"] != NO, "a property that nobody watches");
    demand(std::erase(state().appearanceObservers, observer) == 1, "an observer that is none");
}

- (NSEvent*)currentEvent {
    return state().currentEvent;
}

- (void)activateIgnoringOtherApps:(BOOL)ignoring {
    note(ignoring != NO ? "activateIgnoringOtherApps" : "activateUnlessOthers");
}

- (void)activate {
    note("activate");
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
