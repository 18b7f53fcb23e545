// For Objective-C++ only.
#pragma once

#import <AppKit/AppKit.h>

#include "app/macos/status_item_target.h"

namespace quelby::app {

// The status item's small menu: the dashboard, what the title shows, the settings, quitting. The target
// outlives the menu.
void fillStatusItemMenu(NSMenu* menu, QuelbyStatusItemTarget* target, MenuBarDisplay chosen);

} // namespace quelby::app
