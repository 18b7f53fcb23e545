#pragma once

#include <filesystem>
#include <optional>

#include "base/problem.h"
#include "history/history_store.h"
#include "platform/posix/file_lock.h"

namespace quelby::app {

// Held by the one program that records to this application-support folder: two would count all energy twice.
// It ends with its process, however that ends. A folder that cannot be written to is nobody's: nothing can be
// recorded there, and all else works.
class RecorderLock {
public:
    // Tries at once.
    explicit RecorderLock(const std::filesystem::path& applicationSupport);

    // The problem is that another program records there; it ends with tryAgain().
    [[nodiscard]] const Result<void>& outcome() const { return outcome_; }

    // Whether the lock is this program's now.
    [[nodiscard]] bool tryAgain();

private:
    std::filesystem::path folder_;
    std::optional<FileLock> lock_;
    Result<void> outcome_;
};

// What the program may do to the history then: record, or only show what the other program records, which it
// says on standard error.
[[nodiscard]] HistoryAccess historyAccess(const RecorderLock& lock);

} // namespace quelby::app
