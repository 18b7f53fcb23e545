#include "app/macos/status_item_menu.h"

#include "platform/macos/foundation_text.h"
#include "ui/presentation/text/words.h"

namespace quelby::app {

namespace {

struct Entry {
    std::string_view title;
    SEL action;
    NSInteger tag = 0;
    bool marked = false;
};

void add(NSMenu* menu, QuelbyStatusItemTarget* target, const Entry& entry) {
    const auto title = foundationText(entry.title);
    const Own<NSMenuItem> item([[NSMenuItem alloc] initWithTitle:title.get()
                                                          action:entry.action
                                                   keyEquivalent:@""]);
    [item.get() setTarget:target];
    [item.get() setTag:entry.tag];
    [item.get() setState:entry.marked ? NSControlStateValueOn : NSControlStateValueOff];
    [menu addItem:item.get()];
}

void addSeparator(NSMenu* menu) {
    [menu addItem:[NSMenuItem separatorItem]];
}

void addDisplays(NSMenu* menu, QuelbyStatusItemTarget* target, MenuBarDisplay chosen) {
    NSInteger place = 0;
    for (const auto display : allMenuBarDisplays) {
        add(menu, target, { rawValue(display), @selector(chooseDisplay:), place, display == chosen });
        ++place;
    }
}

} // namespace

void fillStatusItemMenu(NSMenu* menu, QuelbyStatusItemTarget* target, MenuBarDisplay chosen) {
    @autoreleasepool {
        add(menu, target, { words::showDashboard, @selector(showDashboard:) });
        addSeparator(menu);
        addDisplays(menu, target, chosen);
        addSeparator(menu);
        add(menu, target, { words::settings, @selector(showSettings:) });
        add(menu, target, { words::quit, @selector(quit:) });
    }
}

} // namespace quelby::app
