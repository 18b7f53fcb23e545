#include "app/macos/macos_status_item.h"

#include <optional>

#import <AppKit/AppKit.h>

#include "app/macos/status_item_target.h"
#include "platform/macos/foundation_text.h"

namespace quelby::app {

namespace {

// The button's own choice of the primary press stays, whether it is the button going down or up.
void listenToSecondaryPress(NSStatusBarButton* button) {
    const auto primary = static_cast<NSEventMask>([button sendActionOn:NSEventMaskRightMouseUp]);
    [button sendActionOn:primary | NSEventMaskRightMouseUp];
}

} // namespace

struct MacosStatusItem::Parts {
    Parts()
        : item([[[NSStatusBar systemStatusBar] statusItemWithLength:NSVariableStatusItemLength] retain]) {}

    Own<NSStatusItem> item;
    std::optional<Own<QuelbyStatusItemTarget>> target; // none before there are actions
};

MacosStatusItem::MacosStatusItem() {
    @autoreleasepool {
        parts_ = std::make_unique<Parts>();
        [button() setImagePosition:NSImageLeading];
    }
}

MacosStatusItem::~MacosStatusItem() {
    @autoreleasepool {
        [button() setTarget:nil];
        [[NSStatusBar systemStatusBar] removeStatusItem:parts_->item.get()];
        parts_.reset();
    }
}

NSStatusBarButton* MacosStatusItem::button() const {
    return [parts_->item.get() button];
}

bool MacosStatusItem::hasButton() const {
    return button() != nil;
}

void MacosStatusItem::setActions(StatusItemActions actions) {
    @autoreleasepool {
        parts_->target.emplace([[QuelbyStatusItemTarget alloc] initWithActions:std::move(actions)]);
        [button() setTarget:parts_->target->get()];
        [button() setAction:@selector(togglePopover:)];
        listenToSecondaryPress(button());
    }
}

void MacosStatusItem::setImage(std::string_view symbolName, std::string_view accessibilityDescription) {
    @autoreleasepool {
        const auto name = foundationText(symbolName);
        const auto description = foundationText(accessibilityDescription);
        NSImage* const image = [NSImage imageWithSystemSymbolName:name.get()
                                         accessibilityDescription:description.get()];
        if (image != nil) {
            [image setTemplate:YES]; // tinted by the menu bar, for light and for dark
            [button() setImage:image];
        }
    }
}

void MacosStatusItem::setTitle(std::string_view title) {
    @autoreleasepool {
        const auto text = foundationText(title);
        [button() setTitle:text.get()];
    }
}

void MacosStatusItem::setToolTip(std::string_view text) {
    @autoreleasepool {
        const auto tip = foundationText(text);
        [button() setToolTip:tip.get()];
    }
}

void MacosStatusItem::setDisplay(MenuBarDisplay display) {
    if (parts_->target) {
        [parts_->target->get() setDisplay:display];
    }
}

} // namespace quelby::app
