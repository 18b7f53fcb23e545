// Where the history lies, and how it is opened.
#pragma once

#include <filesystem>
#include <string>

#include "base/problem.h"
#include "history/sqlite/connection.h"

namespace quelby {

// `Quelby/history.db` below the user's application-support folder.
[[nodiscard]] std::filesystem::path historyFile(const std::filesystem::path& applicationSupport);

// For the one recorder: makes folder and file where they are missing. The problem says why the file cannot be
// opened.
[[nodiscard]] Result<Connection> openForRecording(const std::filesystem::path& file);

// For everybody else, beside a recorder or without one, also in a folder that cannot be written to. Neither
// the file nor its write-ahead log is changed. The problem says why there is nothing to read: no such file,
// no permission, not a database.
[[nodiscard]] Result<Connection> openForReading(const std::filesystem::path& file);

} // namespace quelby
