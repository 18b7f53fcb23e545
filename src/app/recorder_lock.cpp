#include "app/recorder_lock.h"

#include <fmt/format.h>

#include "console/standard_output.h"
#include "history/history_file.h"

namespace quelby::app {

RecorderLock::RecorderLock(const std::filesystem::path& applicationSupport)
    : folder_(historyFile(applicationSupport).parent_path()) {
    static_cast<void>(tryAgain()); // the outcome tells
}

bool RecorderLock::tryAgain() {
    auto taken = FileLock::take(folder_ / "recorder.lock");
    if (std::holds_alternative<FileLock::HeldByAnother>(taken)) {
        outcome_ = problem(fmt::format("another Quelby records to \"{}\" already", folder_.string()));
        return false;
    }
    if (auto* const lock = std::get_if<FileLock>(&taken)) {
        lock_ = std::move(*lock);
    }
    outcome_ = {};
    return true;
}

HistoryAccess historyAccess(const RecorderLock& lock) {
    if (lock.outcome()) {
        return HistoryAccess::recording;
    }
    writeToStandardError("quelby: " + lock.outcome().error().sentence +
                         ", so this one only shows its history until that one ends\n");
    return HistoryAccess::readOnly;
}

} // namespace quelby::app
