// For Objective-C++ only: texts between Foundation and the standard library, as UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#import <Foundation/Foundation.h>

#include "platform/macos/own.h"

namespace quelby {

// Empty where the text is not UTF-8.
[[nodiscard]] Own<NSString> foundationText(std::string_view text);

// Nothing for no object, and for a text that UTF-8 cannot express.
[[nodiscard]] std::optional<std::string> standardText(NSString* text);

} // namespace quelby
