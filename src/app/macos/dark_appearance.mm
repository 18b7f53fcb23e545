#include "app/macos/dark_appearance.h"

namespace quelby::app {

bool isDark(NSAppearance* appearance) {
    NSString* const nearest =
        [appearance bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
    return [nearest isEqualToString:NSAppearanceNameDarkAqua] != NO;
}

} // namespace quelby::app
