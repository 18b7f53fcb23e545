// Writes a recording to a file.
#pragma once

#include <filesystem>
#include <string>

#include "base/problem.h"
#include "platform/posix/file_descriptor.h"
#include "platform/replay/recorded_cycle.h"

namespace quelby {

// At every moment the file holds whole lines:
//
// 1. The recording starts in a new file beside the named one.
// 2. With its first line written, it takes the place of the named one, which until then is untouched.
// 3. Each further line is added in one piece; one that does not fit is cut off again.
//
// What is no ordinary file, such as a pipe or a device, is written to directly. Problems name the file.
class RecordingWriter {
public:
    [[nodiscard]] static Result<RecordingWriter> open(const std::filesystem::path& file);

    RecordingWriter(RecordingWriter&& other) noexcept;
    RecordingWriter& operator=(RecordingWriter&&) = delete;
    RecordingWriter(const RecordingWriter&) = delete;
    RecordingWriter& operator=(const RecordingWriter&) = delete;
    ~RecordingWriter();

    // After a problem the lines before are kept, and nothing more is to be appended.
    [[nodiscard]] Result<void> append(const RecordedCycle& cycle);

private:
    RecordingWriter(std::filesystem::path named, std::filesystem::path beginning, FileDescriptor file);

    [[nodiscard]] Result<void> takePlace();

    std::filesystem::path named_;
    std::filesystem::path beginning_; // the new file until it takes its place; then empty
    FileDescriptor file_;
    off_t length_ = 0; // of the whole lines
};

} // namespace quelby
