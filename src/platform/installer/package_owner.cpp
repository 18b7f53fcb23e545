#include "platform/installer/package_owner.h"

#include <fstream>
#include <string>

namespace quelby {

namespace {

namespace fs = std::filesystem;

bool isFolder(const fs::path& path) {
    std::error_code failure;
    return fs::is_directory(path, failure);
}

bool hasLine(const fs::path& file, const std::string& wanted) {
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        if (line == wanted) {
            return true;
        }
    }
    return false;
}

// One list of files for each package.
bool isAptsOwn(const std::string& program, const fs::path& root) {
    return hasLine(root / "var/lib/dpkg/info/quelby.list", '/' + program);
}

// One folder for each package, with its version in the name.
bool isPacmansOwn(const std::string& program, const fs::path& root) {
    std::error_code failure;
    for (auto package = fs::directory_iterator(root / "var/lib/pacman/local", failure);
         !failure && package != fs::directory_iterator(); package.increment(failure)) {
        if (package->path().filename().native().starts_with("quelby-") &&
            hasLine(package->path() / "files", program)) {
            return true;
        }
    }
    return false;
}

// Its database is a binary one, but on its systems nobody else puts anything there.
bool isRpmsOwn(const std::string& program, const fs::path& root) {
    const bool ruled = isFolder(root / "usr/lib/sysimage/rpm") || isFolder(root / "var/lib/rpm");
    const bool others = isFolder(root / "var/lib/dpkg/info") || isFolder(root / "var/lib/pacman/local");
    return ruled && !others && program.starts_with("usr/") && !program.starts_with("usr/local/");
}

} // namespace

std::optional<PackageManager> packageOwner(const fs::path& program, const fs::path& root) {
    const auto inside = program.lexically_relative(root).native();
    if (isAptsOwn(inside, root)) {
        return PackageManager::apt;
    }
    if (isPacmansOwn(inside, root)) {
        return PackageManager::pacman;
    }
    return isRpmsOwn(inside, root) ? std::optional(PackageManager::rpm) : std::nullopt;
}

} // namespace quelby
