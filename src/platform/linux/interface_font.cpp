#include "platform/interface_font.h"

namespace quelby {

// The fonts of desktops differ in width, and in whether their digits do.
std::optional<std::string> interfaceFontFamily() {
    return std::nullopt;
}

} // namespace quelby
