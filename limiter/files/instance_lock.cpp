#include "limiter/files/instance_lock.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>

namespace quelby::limiter {

Result<InstanceLock> InstanceLock::take(const Folder& state) {
    FileDescriptor file(::openat(state.number(), "lock", O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, ownFile));
    if (file.isOpen() && ::flock(file.number(), LOCK_EX | LOCK_NB) == 0) {
        return InstanceLock(std::move(file));
    }
    if (errno == EWOULDBLOCK) {
        return problem("another pwr_limiter is at work already");
    }
    return problem("cannot lock its own folder: " + std::generic_category().message(errno));
}

} // namespace quelby::limiter
