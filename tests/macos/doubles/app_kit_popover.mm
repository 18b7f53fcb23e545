#import "macos/doubles/app_kit_state.h"

using namespace quelby::fake;

NSString* NSPopoverDidCloseNotification = @"NSPopoverDidCloseNotification";

@implementation NSViewController

- (void)setView:(NSView*)newView {
    [newView retain];
    [view release];
    view = newView;
}

- (NSView*)view {
    return view;
}

- (void)dealloc {
    [view release];
    [super dealloc];
}

@end

@implementation NSPopover

- (instancetype)init {
    self = [super init];
    state().popover = self;
    return self;
}

- (void)dealloc {
    state().popover = nil;
    [_contentViewController release];
    [_realWindow release];
    [super dealloc];
}

- (void)setContentSize:(NSSize)size {
    note("setContentSize " + sizeText(size));
}

- (void)setBehavior:(NSPopoverBehavior)behavior {
    note(behavior == NSPopoverBehaviorTransient ? "setBehavior transient" : "setBehavior another");
    _behavior = behavior;
}

- (void)setAnimates:(BOOL)animates {
    note(animates != NO ? "setAnimates YES" : "setAnimates NO");
}

- (void)setContentViewController:(NSViewController*)controller {
    note("setContentViewController with a view of " + sizeText([[controller view] frame].size));
    [controller retain];
    [_contentViewController release];
    _contentViewController = controller;
}

- (NSViewController*)contentViewController {
    return _contentViewController;
}

- (BOOL)isShown {
    return _shown;
}

- (void)showRelativeToRect:(NSRect)rect ofView:(NSView*)view preferredEdge:(NSRectEdge)edge {
    demand(view != nil && [view window] != nil, "a popover at a view that is nowhere");
    demand(_contentViewController != nil, "a popover without content");
    note("showRelativeToRect " + sizeText(rect.size) +
         (view == state().button ? " of the button" : " of another view") +
         (edge == NSRectEdgeMinY ? " at the bottom" : " elsewhere"));
    if ([[view window] isVisible] == NO) {
        return;
    }
    if (_realWindow == nil) {
        _realWindow = [[NSWindow alloc] init];
    }
    [[_contentViewController view] standIn:_realWindow];
    _shown = YES;
}

- (void)goAway {
    _shown = NO;
    [[_contentViewController view] standIn:nil];
    notify(NSPopoverDidCloseNotification, self);
}

- (void)performClose:(id)sender {
    note(sender == state().button ? "performClose from the button" : "performClose from elsewhere");
    if (_shown != NO) {
        [self goAway];
    }
}

- (void)clickedElsewhere {
    if (_shown != NO && _behavior == NSPopoverBehaviorTransient) {
        [self goAway];
    }
}

@end

namespace quelby::fake {

void clickElsewhere() {
    @autoreleasepool {
        [state().popover clickedElsewhere];
    }
}

} // namespace quelby::fake
