#pragma once

#include <array>

#include <fcntl.h>
#include <unistd.h>

#include "platform/posix/file_descriptor.h"

namespace quelby {

// What is written to one end is read from the other; both are closed where the system gives none.
struct Pipe {
    Pipe() {
        std::array<int, 2> ends = {-1, -1};
        if (::pipe2(ends.data(), O_CLOEXEC) == 0) {
            reading = FileDescriptor(ends[0]);
            writing = FileDescriptor(ends[1]);
        }
    }

    FileDescriptor reading;
    FileDescriptor writing;
};

// Returns once nobody has the writing end any more.
inline void waitForEnd(const FileDescriptor& reading) {
    char text = 0;
    while (::read(reading.number(), &text, 1) > 0) {
    }
}

} // namespace quelby
