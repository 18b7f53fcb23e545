#pragma once

#include <filesystem>

namespace quelby {

// Where programs of this system keep their files. Absolute paths; the folders need not exist.
class Folders {
public:
    virtual ~Folders() = default;

    // For data of programs, of this user alone.
    [[nodiscard]] virtual std::filesystem::path applicationSupport() = 0;
};

} // namespace quelby
