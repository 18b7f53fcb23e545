#pragma once

#include "platform/posix/file_descriptor.h"

namespace quelby {

// What is written to one end is read from the other.
struct Pipe {
    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

// Neither end is inherited by a child, unless it is made one of its streams. Both are closed where the system
// gives none.
[[nodiscard]] Pipe makePipe();

} // namespace quelby
