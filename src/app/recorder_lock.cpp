#include "app/recorder_lock.h"

#include <fmt/format.h>

#include "console/standard_output.h"
#include "history/history_file.h"

namespace quelby::app {

Result<std::optional<FileLock>> takeRecorderLock(const std::filesystem::path& applicationSupport) {
    const auto folder = historyFile(applicationSupport).parent_path();
    auto taken = FileLock::take(folder / "recorder.lock");
    if (std::holds_alternative<FileLock::HeldByAnother>(taken)) {
        return problem(fmt::format("another Quelby records to \"{}\" already", folder.string()));
    }
    auto* const lock = std::get_if<FileLock>(&taken);
    return lock == nullptr ? std::nullopt : std::optional(std::move(*lock));
}

HistoryAccess historyAccess(const Result<std::optional<FileLock>>& lock) {
    if (lock) {
        return HistoryAccess::recording;
    }
    writeToStandardError("quelby: " + lock.error().sentence + ", so this one only shows its history\n");
    return HistoryAccess::readOnly;
}

} // namespace quelby::app
