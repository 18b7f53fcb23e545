// What Quelby uses of AppKit, declared after the vendor's public documentation.
#pragma once

#import <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@class NSWindow;

// Events

typedef enum __attribute__((enum_extensibility(open))) NSEventType : NSUInteger {
    NSEventTypeLeftMouseDown = 1,
    NSEventTypeLeftMouseUp = 2,
    NSEventTypeRightMouseDown = 3,
    NSEventTypeRightMouseUp = 4,
    NSEventTypeKeyDown = 10,
    NSEventTypeKeyUp = 11,
} NSEventType;

typedef unsigned long long NSEventMask __attribute__((flag_enum, enum_extensibility(open)));

enum : NSEventMask {
    NSEventMaskLeftMouseDown = 1ULL << NSEventTypeLeftMouseDown,
    NSEventMaskLeftMouseUp = 1ULL << NSEventTypeLeftMouseUp,
    NSEventMaskRightMouseDown = 1ULL << NSEventTypeRightMouseDown,
    NSEventMaskRightMouseUp = 1ULL << NSEventTypeRightMouseUp,
    NSEventMaskKeyDown = 1ULL << NSEventTypeKeyDown,
    NSEventMaskKeyUp = 1ULL << NSEventTypeKeyUp,
};

typedef NSUInteger NSEventModifierFlags __attribute__((flag_enum, enum_extensibility(open)));

enum : NSEventModifierFlags {
    NSEventModifierFlagShift = 1 << 17,
    NSEventModifierFlagControl = 1 << 18,
    NSEventModifierFlagOption = 1 << 19,
    NSEventModifierFlagCommand = 1 << 20,
};

@interface NSEvent : NSObject
@property(readonly) NSEventType type;
@property(readonly) NSEventModifierFlags modifierFlags;
@property(readonly, copy, nullable) NSString* charactersIgnoringModifiers;
+ (nullable id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                            handler:(NSEvent* _Nullable (^)(NSEvent* event))handler;
+ (void)removeMonitor:(id)monitor;
@end

typedef enum __attribute__((enum_extensibility(open))) NSApplicationActivationPolicy : NSInteger {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited,
} NSApplicationActivationPolicy;

@interface NSResponder : NSObject
@end

typedef NSString* NSAppearanceName;

extern "C" NSAppearanceName const NSAppearanceNameAqua;
extern "C" NSAppearanceName const NSAppearanceNameDarkAqua QUELBY_SINCE(10.14);

@interface NSAppearance : NSObject
- (nullable NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray<NSAppearanceName>*)names
    QUELBY_SINCE(10.14);
@end

// Colours

@interface NSColorSpace : NSObject
@property(class, readonly, strong) NSColorSpace* sRGBColorSpace;
@end

@interface NSColor : NSObject
@property(class, readonly, strong) NSColor* controlAccentColor QUELBY_SINCE(10.14);
- (nullable NSColor*)colorUsingColorSpace:(NSColorSpace*)space;
// Of a colour in a space of red, green and blue; any other raises.
@property(readonly) CGFloat redComponent;
@property(readonly) CGFloat greenComponent;
@property(readonly) CGFloat blueComponent;
@end

extern "C" NSNotificationName const NSSystemColorsDidChangeNotification;

@interface NSFont : NSObject
+ (NSFont*)systemFontOfSize:(CGFloat)size; // 0: the usual size
@property(readonly, copy, nullable) NSString* familyName;
@end

// The application

@interface NSApplication : NSResponder
@property(class, readonly, strong) NSApplication* sharedApplication;
@property(readonly, strong, nullable) NSEvent* currentEvent;
@property(readonly, strong) NSAppearance* effectiveAppearance QUELBY_SINCE(10.14);
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (void)activate QUELBY_SINCE(14.0);
- (void)activateIgnoringOtherApps:(BOOL)ignoring;
- (void)terminate:(nullable id)sender;
@end

extern "C" NSNotificationName const NSApplicationDidFinishLaunchingNotification;
extern "C" NSNotificationName const NSApplicationWillTerminateNotification;

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(readonly, strong) NSNotificationCenter* notificationCenter;
@property(readonly) BOOL accessibilityDisplayShouldIncreaseContrast;
@property(readonly) BOOL accessibilityDisplayShouldReduceMotion;
@property(readonly) BOOL accessibilityDisplayShouldReduceTransparency;
- (BOOL)openURL:(NSURL*)url;
@end

extern "C" NSNotificationName const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;

// Views and windows

@interface NSView : NSResponder
- (instancetype)initWithFrame:(NSRect)frame;
@property(readonly, assign, nullable) NSWindow* window;
@property(copy) NSArray<__kindof NSView*>* subviews;
@property NSRect bounds;
@property(readonly, getter=isFlipped) BOOL flipped;
@property(copy, nullable) NSString* toolTip;
@property(readonly, strong) NSAppearance* effectiveAppearance QUELBY_SINCE(10.14);
- (NSRect)convertRect:(NSRect)rect toView:(nullable NSView*)view;
- (void)viewDidChangeEffectiveAppearance QUELBY_SINCE(10.14);
@end

@interface NSWindow : NSResponder
@property(readonly, getter=isVisible) BOOL visible;
- (void)makeKeyWindow;
- (NSRect)convertRectToScreen:(NSRect)rect;
@end

@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
@property(readonly) NSRect frame;
@end

@interface NSViewController : NSResponder
@property(strong) NSView* view;
@end

@interface NSImage : NSObject
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description QUELBY_SINCE(11.0);
- (void)setTemplate:(BOOL)isTemplate;
@end

typedef enum __attribute__((enum_extensibility(open))) NSCellImagePosition : NSUInteger {
    NSNoImage = 0,
    NSImageOnly = 1,
    NSImageLeft = 2,
    NSImageRight = 3,
    NSImageBelow = 4,
    NSImageAbove = 5,
    NSImageOverlaps = 6,
    NSImageLeading = 7,
    NSImageTrailing = 8,
} NSCellImagePosition;

@interface NSControl : NSView
@property(weak, nullable) id target;
@property(nullable) SEL action;
- (NSInteger)sendActionOn:(NSEventMask)mask;
@end

@interface NSButton : NSControl
@property(copy) NSString* title;
@property(strong, nullable) NSImage* image;
@property NSCellImagePosition imagePosition;
@end

// The status bar

@interface NSStatusBarButton : NSButton
@end

@interface NSStatusItem : NSObject
@property(readonly, strong, nullable) NSStatusBarButton* button;
@end

static const CGFloat NSVariableStatusItemLength = -1.0;
static const CGFloat NSSquareStatusItemLength = -2.0;

@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end

// The popover

typedef enum __attribute__((enum_extensibility(open))) NSPopoverBehavior : NSInteger {
    NSPopoverBehaviorApplicationDefined = 0,
    NSPopoverBehaviorTransient = 1,
    NSPopoverBehaviorSemitransient = 2,
} NSPopoverBehavior;

@interface NSPopover : NSResponder
@property NSSize contentSize;
@property NSPopoverBehavior behavior;
@property BOOL animates;
@property(strong, nullable) NSViewController* contentViewController;
@property(readonly, getter=isShown) BOOL shown;
- (void)showRelativeToRect:(NSRect)rect ofView:(NSView*)view preferredEdge:(NSRectEdge)edge;
- (void)performClose:(nullable id)sender;
@end

extern "C" NSNotificationName const NSPopoverDidCloseNotification;

// Menus

typedef NSInteger NSControlStateValue;

static const NSControlStateValue NSControlStateValueOff = 0;
static const NSControlStateValue NSControlStateValueOn = 1;

@interface NSMenuItem : NSObject
+ (NSMenuItem*)separatorItem;
- (instancetype)initWithTitle:(NSString*)title action:(nullable SEL)action keyEquivalent:(NSString*)key;
@property(weak, nullable) id target;
@property NSInteger tag;
@property NSControlStateValue state;
@end

@interface NSMenu : NSObject
- (instancetype)initWithTitle:(NSString*)title;
- (void)addItem:(NSMenuItem*)item;
- (BOOL)popUpMenuPositioningItem:(nullable NSMenuItem*)item
                      atLocation:(NSPoint)location
                          inView:(nullable NSView*)view;
@end

#pragma clang assume_nonnull end
