#pragma once

#include <filesystem>

namespace quelby {

// A folder that nobody else knows, and that goes with this object. It is made by whoever first writes to it,
// so that those who only read leave no trace.
class TransientFolder {
public:
    TransientFolder();
    TransientFolder(const TransientFolder&) = delete;
    TransientFolder& operator=(const TransientFolder&) = delete;
    ~TransientFolder();

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace quelby
