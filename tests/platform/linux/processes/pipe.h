#pragma once

#include <unistd.h>

#include "platform/posix/pipe.h"

namespace quelby {

// Returns once nobody has the writing end any more.
inline void waitForEnd(const FileDescriptor& reading) {
    char text = 0;
    while (::read(reading.number(), &text, 1) > 0) {
    }
}

} // namespace quelby
