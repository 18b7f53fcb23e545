#include "limiter/files/open_within.h"

#include <cerrno>
#include <cstdint>

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace quelby::limiter {

namespace {

constexpr int access = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

int openWithin(int directory, const char* name) {
    open_how how{};
    how.flags = static_cast<std::uint64_t>(access);
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_XDEV;
    const auto file = ::syscall(SYS_openat2, directory, name, &how, sizeof how);
    // Older kernels, and filters of system calls that do not know it.
    if (file < 0 && (errno == ENOSYS || errno == EPERM)) {
        return ::openat(directory, name, access);
    }
    return static_cast<int>(file);
}

} // namespace

FileDescriptor openRegularWithin(int directory, const char* name) {
    FileDescriptor file(openWithin(directory, name));

    struct stat status {};

    const bool isRegular = file.isOpen() && ::fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode);
    return isRegular ? std::move(file) : FileDescriptor();
}

} // namespace quelby::limiter
