#include "platform/posix/shared_file.h"

#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/file_descriptor.h"
#include "platform/posix/replace_file.h"

namespace quelby {

namespace {

constexpr mode_t everybodysMode = 0666;

// A pipe under the file's name does not make the program wait, nor does a terminal become its own.
FileDescriptor openRegular(const std::filesystem::path& file, int access) {
    FileDescriptor opened(::open(file.c_str(), access | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));

    struct stat status {};

    const bool isRegular =
        opened.isOpen() && ::fstat(opened.number(), &status) == 0 && S_ISREG(status.st_mode);
    return isRegular ? std::move(opened) : FileDescriptor();
}

// The systems have another name each for the same member.
template <typename Status>
timespec lastChange(const Status& status) {
    if constexpr (requires { status.st_mtimespec; }) {
        return status.st_mtimespec;
    } else {
        return status.st_mtim;
    }
}

// Cut only after it is written: on a full disk the old content stays.
bool rewriteInPlace(const std::filesystem::path& file, std::string_view text) {
    const auto opened = openRegular(file, O_WRONLY | O_NOFOLLOW);
    if (!opened.isOpen() ||
        std::cmp_not_equal(::write(opened.number(), text.data(), text.size()), text.size())) {
        return false;
    }
    static_cast<void>(::fchmod(opened.number(), everybodysMode)); // the owner's to change
    return ::ftruncate(opened.number(), static_cast<off_t>(text.size())) == 0;
}

} // namespace

FileState stateOf(const std::filesystem::path& file) {
    struct stat status {};

    if (::stat(file.c_str(), &status) != 0) {
        return {};
    }
    const auto changed = lastChange(status);
    return {.identity = status.st_ino,
            .size = status.st_size,
            .seconds = changed.tv_sec,
            .nanoseconds = changed.tv_nsec};
}

std::optional<std::string> readSharedFile(const std::filesystem::path& file, std::size_t longest) {
    const auto opened = openRegular(file, O_RDONLY);
    if (!opened.isOpen()) {
        return std::nullopt;
    }
    std::string text(longest + 1, '\0');
    // In one go: a second part might belong to another version of the file.
    const auto length = ::read(opened.number(), text.data(), text.size());
    if (length < 0 || std::cmp_greater(length, longest)) {
        return std::nullopt;
    }
    text.resize(static_cast<std::size_t>(length));
    return text;
}

bool writeSharedFile(const std::filesystem::path& file, std::string_view text) {
    return replaceFile(file, text, everybodysMode) || rewriteInPlace(file, text);
}

} // namespace quelby
