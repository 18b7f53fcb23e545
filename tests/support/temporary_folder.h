#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quelby {

// Where files never reach a disk, which would be what takes most of the time.
[[nodiscard]] inline std::filesystem::path inMemory() {
    const std::filesystem::path folder = "/dev/shm";
    return std::filesystem::exists(folder) ? folder : std::filesystem::temp_directory_path();
}

// An empty folder that goes with this object.
class TemporaryFolder {
public:
    explicit TemporaryFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
        std::string name = (parent / "quelby-test-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("cannot make a temporary folder");
        }
        path_ = name;
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    // Makes or replaces a file below the folder, with the folders on its way.
    std::filesystem::path write(const std::filesystem::path& name, std::string_view content) const {
        auto file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << content;
        return file;
    }

    [[nodiscard]] std::string read(const std::filesystem::path& name) const {
        std::ostringstream content;
        content << std::ifstream(path_ / name, std::ios::binary).rdbuf();
        return content.str();
    }

    // Of the files and folders in a folder below, in order.
    [[nodiscard]] std::vector<std::string> names(const std::filesystem::path& below = {}) const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_ / below)) {
            names.push_back(entry.path().filename());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::filesystem::path path_;
};

} // namespace quelby
