#include <cstdio>
#include <cstdlib>

#include "fuzz/targets/target.h"

namespace quelby::fuzz {

void require(bool holds, std::string_view sentence) {
    if (!holds) {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(sentence.size()), sentence.data());
        std::abort();
    }
}

} // namespace quelby::fuzz
