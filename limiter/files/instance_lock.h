#pragma once

#include "limiter/files/folder.h"

namespace quelby::limiter {

// Keeps a second helper from working on the same state. It ends with this object or with its process, however
// that ends.
class InstanceLock {
public:
    // Does not wait. The problem says that another one is at work, or why that cannot be told.
    [[nodiscard]] static Result<InstanceLock> take(const Folder& state);

private:
    explicit InstanceLock(FileDescriptor file) : file_(std::move(file)) {}

    FileDescriptor file_;
};

} // namespace quelby::limiter
