// For Objective-C++ only: what the status item's button and the items of its menu send their actions to.
#pragma once

#import <AppKit/AppKit.h>

#include "app/status_item.h"

@interface QuelbyStatusItemTarget : NSObject {
    quelby::app::StatusItemActions actions_;
    quelby::MenuBarDisplay display_;
}

- (instancetype)initWithActions:(quelby::app::StatusItemActions)actions;

// The one that the menu marks.
- (void)setDisplay:(quelby::MenuBarDisplay)display;

// The button's action. With the right button or the Control key it is the menu that is asked for.
- (void)togglePopover:(NSView*)button;

- (void)showDashboard:(NSMenuItem*)item;
- (void)chooseDisplay:(NSMenuItem*)item; // whose tag is the display's place among all
- (void)showSettings:(NSMenuItem*)item;
- (void)quit:(NSMenuItem*)item;

@end
