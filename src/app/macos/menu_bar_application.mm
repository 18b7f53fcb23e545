#include "app/macos/menu_bar_application.h"

#import <AppKit/AppKit.h>

#include "app/macos/notification_listener.h"

namespace quelby::app {

namespace {

NSApplication* application() {
    return [NSApplication sharedApplication];
}

} // namespace

void becomeAccessory() {
    @autoreleasepool {
        [application() setActivationPolicy:NSApplicationActivationPolicyAccessory];
    }
}

void activateApplication() {
    @autoreleasepool {
        if (@available(macOS 14.0, *)) {
            [application() activate];
        } else {
            [application() activateIgnoringOtherApps:YES];
        }
    }
}

void terminateApplication() {
    @autoreleasepool {
        [application() terminate:nil];
    }
}

struct ApplicationEvents::Parts {
    explicit Parts(ApplicationListener listener)
        : didFinishLaunching(NSApplicationDidFinishLaunchingNotification, application(),
                             std::move(listener.didFinishLaunching))
        , willTerminate(NSApplicationWillTerminateNotification, application(),
                        std::move(listener.willTerminate)) {}

    NotificationListener didFinishLaunching;
    NotificationListener willTerminate;
};

ApplicationEvents::ApplicationEvents(ApplicationListener listener)
    : parts_(std::make_unique<Parts>(std::move(listener))) {}

ApplicationEvents::~ApplicationEvents() = default;

} // namespace quelby::app
