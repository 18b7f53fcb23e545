#include "platform/linux/xdg_folders.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include <pwd.h>
#include <unistd.h>

#include "platform/helper_names.h"

namespace quelby {

namespace {

std::filesystem::path absolutePathIn(const char* variable) {
    const char* const value = std::getenv(variable);
    const std::filesystem::path path = value == nullptr ? "" : value;
    return path.is_absolute() ? path : std::filesystem::path();
}

std::filesystem::path home() {
    if (auto path = absolutePathIn("HOME"); !path.empty()) {
        return path;
    }
    const passwd* const user = ::getpwuid(::getuid());
    return user == nullptr ? "/" : user->pw_dir;
}

std::filesystem::path userFolder(const char* variable, const std::filesystem::path& belowHome) {
    const auto named = absolutePathIn(variable);
    return named.empty() ? home() / belowHome : named;
}

} // namespace

XdgFolders::XdgFolders(const std::filesystem::path& linkToProgram) {
    std::error_code failure;
    program_ = std::filesystem::read_symlink(linkToProgram, failure);
}

std::filesystem::path XdgFolders::applicationSupport() {
    return userFolder("XDG_DATA_HOME", ".local/share");
}

std::filesystem::path XdgFolders::configuration() {
    return userFolder("XDG_CONFIG_HOME", ".config");
}

std::filesystem::path XdgFolders::helper() {
    return linux_helper::folder;
}

std::optional<std::filesystem::path> XdgFolders::resources() {
    const auto folder = program_.parent_path().parent_path() / "libexec" / "quelby";
    std::error_code failure;
    return std::filesystem::is_directory(folder, failure) ? std::optional(folder) : std::nullopt;
}

std::vector<std::filesystem::path> desktopEntryFolders() {
    std::vector<std::filesystem::path> folders{userFolder("XDG_DATA_HOME", ".local/share") / "applications"};
    const char* const named = std::getenv("XDG_DATA_DIRS");
    std::string_view rest = named == nullptr || *named == '\0' ? "/usr/local/share:/usr/share" : named;
    while (!rest.empty()) {
        const auto end = std::min(rest.find(':'), rest.size());
        if (const std::filesystem::path folder = rest.substr(0, end); folder.is_absolute()) {
            folders.push_back(folder / "applications");
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return folders;
}

} // namespace quelby
