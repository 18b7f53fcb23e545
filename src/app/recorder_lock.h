#pragma once

#include <filesystem>

#include "base/problem.h"
#include "history/history_store.h"
#include "platform/posix/file_lock.h"

namespace quelby::app {

// Held by the one program that records to this application-support folder: two would count all energy twice.
// It ends with its process, however that ends.
//
// The problem is that another program records there. A folder that cannot be written to is none: nothing can
// be recorded there by anybody, and all else works.
[[nodiscard]] Result<std::optional<FileLock>>
takeRecorderLock(const std::filesystem::path& applicationSupport);

// What the program may do to the history then: record, or only show what the other program records, which it
// says on standard error.
[[nodiscard]] HistoryAccess historyAccess(const Result<std::optional<FileLock>>& lock);

} // namespace quelby::app
