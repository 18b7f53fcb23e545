#include "platform/battery_settings.h"

#import <AppKit/AppKit.h>

namespace quelby {

void openBatterySettings() {
    @autoreleasepool {
        NSURL* const pane =
            [NSURL URLWithString:@"x-apple.systempreferences:com.apple.Battery-Settings.extension"];
        if (pane != nil) {
            [[NSWorkspace sharedWorkspace] openURL:pane];
        }
    }
}

} // namespace quelby
