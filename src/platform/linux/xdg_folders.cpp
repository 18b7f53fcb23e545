#include "platform/linux/xdg_folders.h"

#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

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

} // namespace

std::filesystem::path XdgFolders::applicationSupport() {
    const auto dataHome = absolutePathIn("XDG_DATA_HOME");
    return dataHome.empty() ? home() / ".local" / "share" : dataHome;
}

} // namespace quelby
