// Included before everything: what GNUstep's headers of AppKit lack, as in our own. Where GNUstep has the
// thing under a former name, ours stands for that one.
#pragma once

#ifdef __OBJC__
#import <AppKit/AppKit.h>

#define NSRectEdgeMinY NSMinYEdge
#define NSEventTypeLeftMouseUp NSLeftMouseUp
#define NSEventTypeRightMouseUp NSRightMouseUp
#define NSEventTypeKeyDown NSKeyDown
#define NSEventMaskLeftMouseUp NSLeftMouseUpMask
#define NSEventMaskRightMouseUp NSRightMouseUpMask
#define NSEventMaskKeyDown NSKeyDownMask
#define NSEventModifierFlagControl NSControlKeyMask
#define NSEventModifierFlagCommand NSCommandKeyMask

enum : NSCellImagePosition { NSImageLeading = 7 };

extern NSString* const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;

@interface NSApplication (Gaps)
- (void)activate;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (NSAppearance*)effectiveAppearance;
@end

@interface NSColor (Gaps)
+ (NSColor*)controlAccentColor;
- (NSColor*)colorUsingColorSpace:(NSColorSpace*)space;
@end

@interface NSColorSpace (Gaps)
+ (NSColorSpace*)sRGBColorSpace;
@end

@interface NSEvent (Gaps)
+ (id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(NSEvent* (^)(NSEvent*))handler;
@end

@interface NSImage (Gaps)
+ (instancetype)imageWithSystemSymbolName:(NSString*)name accessibilityDescription:(NSString*)description;
- (void)setTemplate:(BOOL)isTemplate;
@end

@interface NSMenu (Gaps)
- (BOOL)popUpMenuPositioningItem:(NSMenuItem*)item atLocation:(NSPoint)location inView:(NSView*)view;
@end

@interface NSStatusItem (Gaps)
- (NSStatusBarButton*)button;
@end

@interface NSView (Gaps)
- (NSAppearance*)effectiveAppearance;
- (void)viewDidChangeEffectiveAppearance;
@end

@interface NSWorkspace (Gaps)
- (BOOL)accessibilityDisplayShouldIncreaseContrast;
- (BOOL)accessibilityDisplayShouldReduceMotion;
- (BOOL)accessibilityDisplayShouldReduceTransparency;
@end
#endif
