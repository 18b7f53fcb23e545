#include "app/macos/native_popover.h"

#import <AppKit/AppKit.h>

#include "app/macos/dark_appearance.h"
#include "app/macos/menu_bar_application.h"
#include "app/macos/notification_listener.h"
#include "platform/macos/own.h"
#include "ui/presentation/elements/metrics.h"

// The view that the dashboard is put into.
@interface QuelbyHostView : NSView {
    std::function<void()> appearanceChanged_;
}
- (instancetype)initWithFrame:(NSRect)frame listener:(std::function<void()>)appearanceChanged;
@end

@implementation QuelbyHostView

- (instancetype)initWithFrame:(NSRect)frame listener:(std::function<void()>)appearanceChanged {
    self = [super initWithFrame:frame];
    if (self != nil) {
        appearanceChanged_ = std::move(appearanceChanged);
    }
    return self;
}

- (void)viewDidChangeEffectiveAppearance {
    [super viewDidChangeEffectiveAppearance];
    appearanceChanged_();
}

@end

namespace quelby::app {

namespace {

constexpr NSSize contentSize = {viewWidth, viewHeight};

void setContent(NSPopover* popover, NSView* view) {
    const Own<NSViewController> controller([[NSViewController alloc] init]);
    [controller.get() setView:view];
    [popover setContentViewController:controller.get()];
}

} // namespace

struct NativePopover::Parts {
    Parts(NSStatusBarButton* below, NativePopoverListener listener)
        : button(below)
        , popover([[NSPopover alloc] init])
        , view([[QuelbyHostView alloc] initWithFrame:NSMakeRect(0, 0, contentSize.width, contentSize.height)
                                            listener:std::move(listener.appearanceChanged)])
        , closing(NSPopoverDidCloseNotification, popover.get(), std::move(listener.closed)) {}

    NSStatusBarButton* button;
    Own<NSPopover> popover;
    Own<QuelbyHostView> view;
    NotificationListener closing;
};

NativePopover::NativePopover(NSStatusBarButton* button, NativePopoverListener listener) {
    @autoreleasepool {
        parts_ = std::make_unique<Parts>(button, std::move(listener));
        NSPopover* const popover = parts_->popover.get();
        [popover setContentSize:contentSize];
        [popover setBehavior:NSPopoverBehaviorTransient];
        [popover setAnimates:YES];
        setContent(popover, parts_->view.get());
    }
}

NativePopover::~NativePopover() {
    @autoreleasepool {
        parts_.reset();
    }
}

NSView* NativePopover::hostView() const {
    return parts_->view.get();
}

bool NativePopover::holdsContent() const {
    @autoreleasepool {
        return [[parts_->view.get() subviews] count] > 0;
    }
}

bool NativePopover::isDark() const {
    @autoreleasepool {
        return app::isDark([parts_->view.get() effectiveAppearance]);
    }
}

bool NativePopover::isShown() const {
    return [parts_->popover.get() isShown] != NO;
}

bool NativePopover::show() {
    NSStatusBarButton* const button = parts_->button;
    @autoreleasepool {
        if ([button window] == nil) {
            return false; // the system would raise an exception
        }
        [parts_->popover.get() showRelativeToRect:[button bounds] ofView:button preferredEdge:NSRectEdgeMinY];
        if (!isShown()) {
            return false; // the button's window is hidden: by a notch, or by too many other items
        }
        activateApplication();
        [[parts_->view.get() window] makeKeyWindow];
        return true;
    }
}

void NativePopover::close() {
    @autoreleasepool {
        [parts_->popover.get() performClose:parts_->button];
    }
}

} // namespace quelby::app
