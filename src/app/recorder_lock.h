#pragma once

#include <filesystem>

#include "base/problem.h"
#include "platform/posix/file_lock.h"

namespace quelby::app {

// Held by the one program that records to this application-support folder: two would count all energy twice.
// It ends with its process, however that ends.
//
// The problem is that another program records there. A folder that cannot be written to is none: nothing can
// be recorded there by anybody, and all else works.
[[nodiscard]] Result<std::optional<FileLock>>
takeRecorderLock(const std::filesystem::path& applicationSupport);

} // namespace quelby::app
