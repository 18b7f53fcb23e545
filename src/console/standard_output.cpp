#include "console/standard_output.h"

#include <cerrno>
#include <system_error>

#include <unistd.h>

namespace quelby {

namespace {

// False with errno set.
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

} // namespace

Result<void> writeToStandardOutput(std::string_view text) {
    if (writeWhole(STDOUT_FILENO, text)) {
        return {};
    }
    return problem("cannot write to standard output: " + std::generic_category().message(errno));
}

void writeToStandardError(std::string_view text) {
    static_cast<void>(writeWhole(STDERR_FILENO, text));
}

} // namespace quelby
