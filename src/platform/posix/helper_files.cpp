#include "platform/posix/helper_files.h"

#include <fmt/format.h>

namespace quelby {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestText = 64 << 10; // bytes; a real one has some hundred

void makeOpenFolder(const fs::path& folder) {
    std::error_code ignored;
    if (fs::create_directories(folder, ignored)) {
        fs::permissions(folder, fs::perms::all, ignored);
    }
}

} // namespace

std::optional<std::string> HelperFiles::config() {
    configSeen_ = stateOf(configFile()); // first: what is written while it is read is read again
    return readSharedFile(configFile(), longestText);
}

bool HelperFiles::configChanged() {
    return configSeen_ != stateOf(configFile());
}

std::optional<std::string> HelperFiles::status() {
    return readSharedFile(folder_ / "status.json", longestText);
}

std::optional<std::string> HelperFiles::details() {
    detailsSeen_ = stateOf(detailsFile());
    return readSharedFile(detailsFile(), longestText);
}

bool HelperFiles::detailsChanged() {
    return detailsSeen_ != stateOf(detailsFile());
}

Result<void> HelperFiles::replaceConfig(std::string_view text) {
    makeOpenFolder(folder_);
    if (writeSharedFile(configFile(), text)) {
        return {};
    }
    return problem(fmt::format("cannot write the helper's settings to \"{}\"", folder_.string()));
}

} // namespace quelby
