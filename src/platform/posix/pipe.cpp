#include "platform/posix/pipe.h"

#include <array>

#include <fcntl.h>

namespace quelby {

Pipe makePipe() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
        return {};
    }
    for (const int end : ends) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

} // namespace quelby
