#include "base/version.h"

namespace quelby {

std::string_view version() {
    return QUELBY_VERSION;
}

} // namespace quelby
