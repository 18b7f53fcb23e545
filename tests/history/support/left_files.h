// What a computer that has lost its power finds on its disk.
#pragma once

#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "history/support/recorded_disk.h"

namespace quelby {

// Of each file all until its last flush, and of what came then whatever the disk got round to, in any order.
class LeftFiles {
public:
    // The change outlives this.
    void take(const DiskChange& change);

    // The files as they may be if the power goes now.
    void writeTo(const std::filesystem::path& folder, std::mt19937& chance) const;

private:
    struct File {
        std::string flushed;
        std::vector<const DiskChange*> pending;
    };

    std::map<std::string, File> files_{{"history.db", {}}, {"history.db-wal", {}}}; // by name
};

// So many moments in which the power goes, as numbers of changes that happened before, in order.
[[nodiscard]] std::vector<std::size_t> powerLosses(std::size_t count, std::size_t changes,
                                                   std::mt19937& chance);

} // namespace quelby
