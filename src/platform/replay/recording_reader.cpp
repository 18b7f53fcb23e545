#include "platform/replay/recording_reader.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <system_error>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/replay/recording_line.h"

namespace quelby {

namespace {

// The listings of 100,000 processes fit; a file that is no recording ends here instead of filling the memory.
constexpr std::size_t longestLine = 16 << 20;
constexpr std::size_t chunkSize = 64 << 10;

tl::unexpected<Problem> systemProblem() {
    return problem(std::generic_category().message(errno));
}

mode_t kindOf(int file) {
    struct stat status {};

    return fstat(file, &status) == 0 ? status.st_mode & S_IFMT : 0;
}

ssize_t readSome(int file, char* buffer, std::size_t size) {
    ssize_t count = 0;
    do {
        count = ::read(file, buffer, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

Result<FileDescriptor> temporaryCopy(int source) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> copy(std::tmpfile(), &std::fclose);
    if (!copy) {
        return systemProblem();
    }
    std::array<char, chunkSize> chunk{};
    std::size_t lineLength = 0;
    while (true) {
        const auto count = readSome(source, chunk.data(), chunk.size());
        if (count < 0) {
            return systemProblem();
        }
        if (count == 0) {
            break;
        }
        const std::string_view text(chunk.data(), static_cast<std::size_t>(count));
        const auto newline = text.rfind('\n');
        lineLength = newline == std::string_view::npos ? lineLength + text.size() : text.size() - newline;
        if (lineLength > longestLine) {
            return problem("it is not a recording");
        }
        if (std::fwrite(text.data(), 1, text.size(), copy.get()) != text.size()) {
            return systemProblem();
        }
    }
    if (std::fflush(copy.get()) != 0) {
        return systemProblem();
    }
    FileDescriptor file(fcntl(fileno(copy.get()), F_DUPFD_CLOEXEC, 0));
    return file.isOpen() ? Result<FileDescriptor>(std::move(file)) : systemProblem();
}

Result<FileDescriptor> openTwiceReadable(const std::filesystem::path& path) {
    FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen()) {
        return systemProblem();
    }
    switch (kindOf(file.number())) {
    case S_IFREG:
        return file;
    case S_IFDIR:
        return problem("it is a directory");
    default:
        return temporaryCopy(file.number());
    }
}

} // namespace

Result<RecordingReader> RecordingReader::open(const std::filesystem::path& file) {
    const auto naming = [&](const Problem& cause) {
        return Problem{fmt::format("cannot replay \"{}\": {}", file.string(), cause.sentence)};
    };
    auto opened = openTwiceReadable(file);
    if (!opened) {
        return tl::make_unexpected(naming(opened.error()));
    }
    RecordingReader reader(std::move(*opened));
    reader.rewind();
    if (const auto valid = reader.validate(); !valid) {
        return tl::make_unexpected(naming(valid.error()));
    }
    reader.rewind();
    return reader;
}

Result<void> RecordingReader::validate() {
    for (std::size_t number = 1;; ++number) {
        const auto line = nextLine();
        if (!line) {
            return problem(fmt::format("line {} {}", number, line.error().sentence));
        }
        if (!*line) {
            return number > 1 ? Result<void>() : problem("it is empty");
        }
        if (const auto cycle = parseRecordingLine(**line); !cycle) {
            return problem(fmt::format("line {} {}", number, cycle.error().sentence));
        }
    }
}

std::optional<RecordedCycle> RecordingReader::next() {
    const auto line = nextLine();
    if (!line || !*line) {
        return std::nullopt;
    }
    auto cycle = parseRecordingLine(**line);
    return cycle ? std::optional(std::move(*cycle)) : std::nullopt;
}

void RecordingReader::rewind() {
    static_cast<void>(lseek(file_.number(), 0, SEEK_SET)); // only files that can be read twice come here
    buffer_.clear();
    position_ = 0;
    atEnd_ = false;
}

Result<std::optional<std::string>> RecordingReader::nextLine() {
    auto searched = position_;
    while (true) {
        const auto newline = buffer_.find('\n', searched);
        if (newline != std::string::npos) {
            auto line = buffer_.substr(position_, newline - position_);
            position_ = newline + 1;
            return line;
        }
        if (atEnd_) {
            auto last = buffer_.substr(position_);
            position_ = buffer_.size();
            return last.empty() ? std::nullopt : std::optional(std::move(last));
        }
        searched = buffer_.size() - position_;
        if (searched > longestLine) {
            return problem("is too long for a recording");
        }
        if (const auto read = readChunk(); !read) {
            return tl::make_unexpected(read.error());
        }
    }
}

Result<void> RecordingReader::readChunk() {
    buffer_.erase(0, std::exchange(position_, 0));
    const auto kept = buffer_.size();
    buffer_.resize(kept + chunkSize);
    const auto count = readSome(file_.number(), buffer_.data() + kept, chunkSize);
    buffer_.resize(kept + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (count < 0) {
        return problem("cannot be read: " + std::generic_category().message(errno));
    }
    atEnd_ = count == 0;
    return {};
}

} // namespace quelby
