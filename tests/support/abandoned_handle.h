#pragma once

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace quelby {

// Opens what cannot be opened: SQLite's handle is then given up as it is, which is no leak to be reported.
template <typename Opening>
auto abandoningTheHandle(const Opening& opening) {
#ifdef __SANITIZE_ADDRESS__
    const __lsan::ScopedDisabler lossIsExpected;
#endif
    return opening();
}

} // namespace quelby
