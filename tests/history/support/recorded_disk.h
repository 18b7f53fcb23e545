// A disk below SQLite that remembers, and that fails where a test wants it to.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <sqlite3.h>

namespace quelby {

// A change of the database or of its write-ahead log, in the order in which SQLite asked for them.
struct DiskChange {
    enum class Kind { write, truncate, flush };

    Kind kind = Kind::write;
    std::string file;       // its name without the folder
    std::int64_t place = 0; // where it is written; the new size where it is cut off
    std::string bytes;
};

// While it is there, all that this process opens by SQLite lies on it. The files are ordinary ones.
class RecordedDisk {
public:
    RecordedDisk();
    RecordedDisk(const RecordedDisk&) = delete;
    RecordedDisk& operator=(const RecordedDisk&) = delete;
    ~RecordedDisk();

    // Gives SQLITE_OK, or with what the change of this number fails, from 0 on. All succeed unless it is set.
    std::function<int(std::size_t number)> outcome;

    [[nodiscard]] const std::vector<DiskChange>& changes() const { return changes_; }

    // Takes the change down and lets it happen, or not.
    [[nodiscard]] int change(DiskChange wanted, const std::function<int()>& happen);

private:
    sqlite3_vfs vfs_;
    std::vector<DiskChange> changes_;
};

} // namespace quelby
