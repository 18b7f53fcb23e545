#pragma once

#include <filesystem>
#include <optional>
#include <variant>

#include "platform/posix/file_descriptor.h"

namespace quelby {

// An exclusive lock on a file, which ends with this object or with its process, however that ends. The file
// itself stays.
class FileLock {
public:
    struct HeldByAnother {};

    // The file, or the folder that it would lie in, cannot be opened or made.
    struct Impossible {};

    // Does not wait. Folder and file are made where they are missing.
    [[nodiscard]] static std::variant<FileLock, HeldByAnother, Impossible>
    take(const std::filesystem::path& file);

private:
    explicit FileLock(FileDescriptor file) : file_(std::move(file)) {}

    FileDescriptor file_;
};

} // namespace quelby
