#pragma once

#include <filesystem>

#include <sys/stat.h>

namespace quelby {

// Who may do what with the file.
inline unsigned modeOf(const std::filesystem::path& path) {
    return static_cast<unsigned>(std::filesystem::status(path).permissions());
}

// The mask of this process for files that it makes, until the end of the block.
class Umask {
public:
    explicit Umask(mode_t mask) : former_(::umask(mask)) {}

    Umask(const Umask&) = delete;
    Umask& operator=(const Umask&) = delete;

    ~Umask() { ::umask(former_); }

private:
    mode_t former_;
};

} // namespace quelby
