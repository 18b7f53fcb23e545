#include "platform/posix/file_lock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>

namespace quelby {

std::variant<FileLock, FileLock::HeldByAnother, FileLock::Impossible>
FileLock::take(const std::filesystem::path& file) {
    std::error_code ignored;
    std::filesystem::create_directories(file.parent_path(), ignored);
    FileDescriptor opened(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    if (!opened.isOpen()) {
        return Impossible{};
    }
    if (::flock(opened.number(), LOCK_EX | LOCK_NB) == 0) {
        return FileLock(std::move(opened));
    }
    if (errno == EWOULDBLOCK) {
        return HeldByAnother{};
    }
    return Impossible{};
}

} // namespace quelby
