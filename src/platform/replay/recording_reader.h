// Plays the lines of a recording, one after the other.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "base/problem.h"
#include "platform/posix/file_descriptor.h"
#include "platform/replay/recorded_cycle.h"

namespace quelby {

// A recording is held as a file, not in memory: a day of a busy machine is some hundred megabytes.
class RecordingReader {
public:
    // Reads the whole recording once, so that a line that is not a cycle is refused, with its number, before
    // anything is played; so is a recording without a line. What cannot be read twice, such as a pipe, is
    // copied to an unnamed temporary file first. The problem names the file.
    [[nodiscard]] static Result<RecordingReader> open(const std::filesystem::path& file);

    // The next cycle; nothing after the last one, or if the file was changed meanwhile and its next line is
    // none.
    [[nodiscard]] std::optional<RecordedCycle> next();

    // The first cycle comes next.
    void rewind();

private:
    explicit RecordingReader(FileDescriptor file) : file_(std::move(file)) {}

    [[nodiscard]] Result<void> validate();
    [[nodiscard]] Result<std::optional<std::string>> nextLine();
    [[nodiscard]] Result<void> readChunk();

    FileDescriptor file_;
    std::string buffer_;       // what was read and not yet handed out starts at position_
    std::size_t position_ = 0; // in buffer_
    bool atEnd_ = false;
};

} // namespace quelby
