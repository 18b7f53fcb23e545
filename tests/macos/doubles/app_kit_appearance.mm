#import "macos/doubles/app_kit_state.h"

using namespace quelby::fake;

NSString* NSSystemColorsDidChangeNotification = @"NSSystemColorsDidChangeNotification";
NSString* const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification =
    @"NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification";
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

@implementation NSColorSpace

+ (NSColorSpace*)sRGBColorSpace {
    static NSColorSpace* const space = [[NSColorSpace alloc] init];
    return space;
}

@end

// Its components are only to be had in a space of red, green and blue.
@interface AccentColorDouble : NSColor {
@public
    BOOL hasComponents_;
}
@end

@implementation NSColor

+ (NSColor*)controlAccentColor {
    return [[[AccentColorDouble alloc] init] autorelease];
}

@end

@implementation AccentColorDouble

- (NSColor*)colorUsingColorSpace:(NSColorSpace*)space {
    demand(space == [NSColorSpace sRGBColorSpace], "another space of colours");
    if (!appKit().accent) {
        return nil;
    }
    AccentColorDouble* const color = [[[AccentColorDouble alloc] init] autorelease];
    color->hasComponents_ = YES;
    return color;
}

- (CGFloat)component:(std::size_t)index {
    demand(hasComponents_ != NO, "components of a colour that has none");
    return appKit().accent->at(index);
}

- (CGFloat)redComponent {
    return [self component:0];
}

- (CGFloat)greenComponent {
    return [self component:1];
}

- (CGFloat)blueComponent {
    return [self component:2];
}

@end

@interface SystemFont : NSFont
@end

@implementation NSFont

+ (NSFont*)systemFontOfSize:(CGFloat)size {
    demand(size == 0, "another size than the usual one");
    return [[[SystemFont alloc] init] autorelease];
}

@end

@implementation SystemFont

- (NSString*)familyName {
    return [NSString stringWithUTF8String:appKit().fontFamily.c_str()];
}

@end

@implementation NSWorkspace (Accessibility)

- (NSNotificationCenter*)notificationCenter {
    static NSNotificationCenter* const center = [[NSNotificationCenter alloc] init];
    return center;
}

- (BOOL)accessibilityDisplayShouldIncreaseContrast {
    return appKit().increasesContrast ? YES : NO;
}

- (BOOL)accessibilityDisplayShouldReduceMotion {
    return appKit().reducesMotion ? YES : NO;
}

- (BOOL)accessibilityDisplayShouldReduceTransparency {
    return appKit().reducesTransparency ? YES : NO;
}

@end

namespace quelby::fake {

void systemTurns(bool dark) {
    @autoreleasepool {
        appKit().systemIsDark = dark;
        for (NSObject* const observer : std::vector(state().appearanceObservers)) {
            [observer observeValueForKeyPath:@"effectiveAppearance"
                                    ofObject:[NSApplication sharedApplication]
                                      change:nil
                                     context:nullptr];
        }
    }
}

void menuBarTurns(bool dark) {
    @autoreleasepool {
        appKit().menuBarIsDark = dark;
        [[[state().popover contentViewController] view] viewDidChangeEffectiveAppearance];
    }
}

void colorsChange() {
    notify(NSSystemColorsDidChangeNotification, nil);
}

void accessibilityChanges() {
    @autoreleasepool {
        [[[NSWorkspace sharedWorkspace] notificationCenter]
            postNotificationName:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
                          object:nil];
    }
}

} // namespace quelby::fake
