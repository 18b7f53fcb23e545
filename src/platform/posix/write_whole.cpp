#include "platform/posix/write_whole.h"

#include <cerrno>

#include <unistd.h>

namespace quelby {

bool writeWhole(int file, std::string_view text) {
    while (!text.empty()) {
        const auto count = ::write(file, text.data(), text.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return false;
        }
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace quelby
