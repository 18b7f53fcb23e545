#include "app/macos/native_popover.h"

#import <AppKit/AppKit.h>

#include "app/macos/dark_appearance.h"
#include "app/macos/menu_bar_application.h"
#include "app/macos/notification_listener.h"
#include "platform/macos/own.h"
#include "ui/presentation/elements/metrics.h"

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
    Parts(NSStatusBarButton* below, std::function<void()> closed)
        : button(below)
        , popover([[NSPopover alloc] init])
        , view([[NSView alloc] initWithFrame:NSMakeRect(0, 0, contentSize.width, contentSize.height)])
        , closing(NSPopoverDidCloseNotification, popover.get(), std::move(closed)) {}

    NSStatusBarButton* button;
    Own<NSPopover> popover;
    Own<NSView> view;
    NotificationListener closing;
};

NativePopover::NativePopover(NSStatusBarButton* button, std::function<void()> closed) {
    @autoreleasepool {
        parts_ = std::make_unique<Parts>(button, std::move(closed));
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

void NativePopover::show() {
    NSStatusBarButton* const button = parts_->button;
    if (button == nil) {
        return;
    }
    @autoreleasepool {
        [parts_->popover.get() showRelativeToRect:[button bounds] ofView:button preferredEdge:NSRectEdgeMinY];
        activateApplication();
        [[parts_->view.get() window] makeKeyWindow];
    }
}

void NativePopover::close() {
    @autoreleasepool {
        [parts_->popover.get() performClose:parts_->button];
    }
}

} // namespace quelby::app
