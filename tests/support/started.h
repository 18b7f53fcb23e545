#pragma once

#include <cerrno>
#include <system_error>

#include <sys/types.h>

namespace quelby {

// What fork() gave, unless it failed: a signal to the process -1 would go to every process that there is.
inline pid_t started(pid_t process) {
    if (process < 0) {
        throw std::system_error(errno, std::generic_category(), "no process could be started");
    }
    return process;
}

} // namespace quelby
