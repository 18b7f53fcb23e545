#pragma once

#include "platform/posix/file_descriptor.h"

namespace quelby::limiter {

// Opens a regular file that lies in the directory itself, for reading. Not open where the name stands for
// anything else: a link, a pipe, a device, a directory, or something mounted over it. Never waits.
[[nodiscard]] FileDescriptor openRegularWithin(int directory, const char* name);

} // namespace quelby::limiter
