#include "platform/replay/recording_writer.h"

#include <cerrno>
#include <cstdlib>
#include <system_error>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/write_whole.h"
#include "platform/replay/recording_line.h"

namespace quelby {

namespace {

tl::unexpected<Problem> cannotRecord(const std::filesystem::path& file, int cause) {
    return problem(
        fmt::format("cannot record to \"{}\": {}", file.string(), std::generic_category().message(cause)));
}

// As open() would give to a new file; the mask can only be read by setting it.
mode_t ordinaryMode() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

// Through symbolic links, so that the link stays and its target is replaced.
std::filesystem::path resolved(const std::filesystem::path& file) {
    std::error_code failure;
    auto target = std::filesystem::weakly_canonical(file, failure);
    return failure ? file : target;
}

} // namespace

RecordingWriter::RecordingWriter(std::filesystem::path named, std::filesystem::path beginning,
                                 FileDescriptor file)
    : named_(std::move(named)), beginning_(std::move(beginning)), file_(std::move(file)) {}

RecordingWriter::RecordingWriter(RecordingWriter&& other) noexcept
    : named_(std::move(other.named_))
    , beginning_(std::exchange(other.beginning_, {}))
    , file_(std::move(other.file_))

    , length_(other.length_) {}

RecordingWriter::~RecordingWriter() {
    if (!beginning_.empty()) {
        ::unlink(beginning_.c_str());
    }
}

Result<RecordingWriter> RecordingWriter::open(const std::filesystem::path& file) {
    struct stat present {};

    mode_t mode = ordinaryMode();
    if (::stat(file.c_str(), &present) == 0) {
        if (S_ISDIR(present.st_mode)) {
            return cannotRecord(file, EISDIR);
        }
        if (!S_ISREG(present.st_mode)) {
            FileDescriptor opened(::open(file.c_str(), O_WRONLY | O_CLOEXEC));
            return opened.isOpen() ? Result<RecordingWriter>(RecordingWriter(file, {}, std::move(opened)))
                                   : cannotRecord(file, errno);
        }
        if (::access(file.c_str(), W_OK) != 0) {
            return cannotRecord(file, errno);
        }
        mode = present.st_mode & 07777;
    }
    const auto named = resolved(file);
    std::string beginning = named.string() + ".XXXXXX";
    FileDescriptor opened(::mkostemp(beginning.data(), O_CLOEXEC));
    if (!opened.isOpen()) {
        return cannotRecord(file, errno);
    }
    RecordingWriter writer(named, beginning, std::move(opened));
    return ::fchmod(writer.file_.number(), mode) == 0 ? Result<RecordingWriter>(std::move(writer))
                                                      : cannotRecord(file, errno);
}

Result<void> RecordingWriter::append(const RecordedCycle& cycle) {
    const auto line = recordingLine(cycle) + '\n';
    if (!writeWhole(file_.number(), line)) {
        const int cause = errno;
        static_cast<void>(::ftruncate(file_.number(), length_) ==
                          0); // a device cannot be cut, and need not be
        return cannotRecord(named_, cause);
    }
    length_ += static_cast<off_t>(line.size());
    return beginning_.empty() ? Result<void>() : takePlace();
}

Result<void> RecordingWriter::takePlace() {
    if (::rename(beginning_.c_str(), named_.c_str()) != 0) {
        return cannotRecord(named_, errno);
    }
    beginning_.clear();
    return {};
}

} // namespace quelby
