// For Objective-C++ only.
#pragma once

#import <AppKit/AppKit.h>

namespace quelby::app {

[[nodiscard]] bool isDark(NSAppearance* appearance);

} // namespace quelby::app
