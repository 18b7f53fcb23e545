#include "app/macos/status_item_target.h"

#include <utility>

#include "app/macos/status_item_menu.h"
#include "platform/macos/foundation_text.h"
#include "platform/macos/own.h"
#include "ui/presentation/text/words.h"

using namespace quelby;

namespace {

bool asksForMenu(NSEvent* event) {
    return
        [event type] == NSEventTypeRightMouseUp || ([event modifierFlags] & NSEventModifierFlagControl) != 0;
}

// The corner below which the menu opens, whichever way the view counts.
NSPoint lowerCorner(NSView* view) {
    const NSRect bounds = [view bounds];
    return NSMakePoint(NSMinX(bounds), [view isFlipped] != NO ? NSMaxY(bounds) : NSMinY(bounds));
}

} // namespace

@implementation QuelbyStatusItemTarget

- (instancetype)initWithActions:(app::StatusItemActions)actions {
    self = [super init];
    if (self != nil) {
        actions_ = std::move(actions);
        display_ = MenuBarDisplay::watts;
    }
    return self;
}

- (void)setDisplay:(MenuBarDisplay)display {
    display_ = display;
}

- (void)togglePopover:(NSView*)button {
    if (!asksForMenu([[NSApplication sharedApplication] currentEvent])) {
        actions_.toggle();
        return;
    }
    const auto title = foundationText(words::program);
    const Own<NSMenu> menu([[NSMenu alloc] initWithTitle:title.get()]);
    app::fillStatusItemMenu(menu.get(), self, display_);
    [menu.get() popUpMenuPositioningItem:nil atLocation:lowerCorner(button) inView:button];
}

- (void)showDashboard:(NSMenuItem*)item {
    actions_.showDashboard();
}

- (void)chooseDisplay:(NSMenuItem*)item {
    actions_.chooseDisplay(allMenuBarDisplays.at(static_cast<std::size_t>([item tag])));
}

- (void)showSettings:(NSMenuItem*)item {
    actions_.showSettings();
}

- (void)quit:(NSMenuItem*)item {
    actions_.quit();
}

@end
