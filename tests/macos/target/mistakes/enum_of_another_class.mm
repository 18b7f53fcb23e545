// Refused: cannot initialize a parameter of type 'NSPopoverBehavior'

#import <AppKit/AppKit.h>

void setUp(NSPopover* popover) {
    [popover setBehavior:NSImageLeading];
}
