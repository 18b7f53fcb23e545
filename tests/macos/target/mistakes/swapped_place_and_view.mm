// Refused: no viable conversion from 'NSView

#import <AppKit/AppKit.h>

void show(NSPopover* popover, NSView* view) {
    [popover showRelativeToRect:view ofView:[view bounds] preferredEdge:NSRectEdgeMinY];
}
