#pragma once

#include <filesystem>
#include <optional>

namespace quelby {

// Where programs of this system keep their files. Absolute paths; the folders need not exist.
class Folders {
public:
    virtual ~Folders() = default;

    // For data of programs, of this user alone.
    [[nodiscard]] virtual std::filesystem::path applicationSupport() = 0;

    // Where the programs of this user keep their settings.
    [[nodiscard]] virtual std::filesystem::path configuration() = 0;

    // Shared with the charge-limit helper, on all of the computer.
    [[nodiscard]] virtual std::filesystem::path helper() = 0;

    // What was installed beside the program for its own use; nothing where it was not installed.
    [[nodiscard]] virtual std::optional<std::filesystem::path> resources() = 0;

    // The program itself.
    [[nodiscard]] virtual std::filesystem::path program() = 0;
};

} // namespace quelby
