#include "console/standard_output.h"

#include <cerrno>
#include <system_error>

#include <unistd.h>

#include "platform/posix/write_whole.h"

namespace quelby {

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
