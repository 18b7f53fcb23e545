#include "base/version.h"

namespace quelby {

std::string_view version() {
    return QUELBY_VERSION;
}

std::string_view shortVersion() {
    return version().substr(0, version().rfind('.'));
}

} // namespace quelby
