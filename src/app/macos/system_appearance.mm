#include "app/macos/system_appearance.h"

#include <algorithm>
#include <cmath>
#include <utility>

#import <AppKit/AppKit.h>

#include "app/macos/dark_appearance.h"
#include "app/macos/notification_listener.h"
#include "platform/macos/own.h"

@interface QuelbyAppearanceObserver : NSObject {
    std::function<void()> changed_;
}
- (instancetype)initWithListener:(std::function<void()>)changed;
@end

@implementation QuelbyAppearanceObserver

- (instancetype)initWithListener:(std::function<void()>)changed {
    self = [super init];
    if (self != nil) {
        changed_ = std::move(changed);
    }
    return self;
}

- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary*)change
                       context:(void*)context {
    changed_();
}

@end

namespace quelby::app {

namespace {

NSApplication* application() {
    return [NSApplication sharedApplication];
}

NSWorkspace* workspace() {
    return [NSWorkspace sharedWorkspace];
}

// A component of a colour, in eight bits.
std::uint32_t bits(double component) {
    return static_cast<std::uint32_t>(std::lround(std::clamp(component, 0.0, 1.0) * 255));
}

std::optional<std::uint32_t> accentColor() {
    NSColor* const color = [[NSColor controlAccentColor] colorUsingColorSpace:[NSColorSpace sRGBColorSpace]];
    if (color == nil) {
        return std::nullopt;
    }
    return bits([color redComponent]) << 16U | bits([color greenComponent]) << 8U |
           bits([color blueComponent]);
}

// There is no notification of the system's windows becoming dark: it is a property that can be watched.
class DarknessWatch {
public:
    explicit DarknessWatch(std::function<void()> changed)
        : observer_([[QuelbyAppearanceObserver alloc] initWithListener:std::move(changed)]) {
        [application() addObserver:observer_.get()
                        forKeyPath:@"effectiveAppearance"
                           options:0
                           context:nullptr];
    }

    DarknessWatch(const DarknessWatch&) = delete;
    DarknessWatch& operator=(const DarknessWatch&) = delete;

    ~DarknessWatch() { [application() removeObserver:observer_.get() forKeyPath:@"effectiveAppearance"]; }

private:
    Own<QuelbyAppearanceObserver> observer_;
};

} // namespace

Appearance systemAppearance() {
    @autoreleasepool {
        return {.dark = isDark([application() effectiveAppearance]),
                .animated = [workspace() accessibilityDisplayShouldReduceMotion] == NO,
                .contrast = [workspace() accessibilityDisplayShouldIncreaseContrast] != NO,
                .accent = accentColor(),
                .backdrop = [workspace() accessibilityDisplayShouldReduceTransparency] == NO
                                ? Backdrop::material
                                : Backdrop::none};
    }
}

struct SystemAppearanceListener::Parts {
    explicit Parts(const std::function<void()>& changed)
        : darkness(changed)
        , colors(NSSystemColorsDidChangeNotification, nil, changed)
        , accessibility([workspace() notificationCenter],
                        NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification, nil, changed) {}

    DarknessWatch darkness;
    NotificationListener colors;
    NotificationListener accessibility;
};

SystemAppearanceListener::SystemAppearanceListener(const std::function<void()>& changed) {
    @autoreleasepool {
        parts_ = std::make_unique<Parts>(changed);
    }
}

SystemAppearanceListener::~SystemAppearanceListener() {
    @autoreleasepool {
        parts_.reset();
    }
}

} // namespace quelby::app
