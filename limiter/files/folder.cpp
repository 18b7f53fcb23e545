#include "limiter/files/folder.h"

#include <array>
#include <cerrno>
#include <memory>
#include <system_error>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include "limiter/files/open_within.h"

namespace quelby::limiter {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view neighbourPrefix = ".pwr_limiter-";

// Anybody can lay anything into the folder, but cannot guess this name beforehand.
std::string neighbourName() {
    constexpr std::string_view digits = "0123456789abcdef";
    std::array<unsigned char, 16> random{};
    static_cast<void>(::getrandom(random.data(), random.size(), 0) > 0); // so few bytes come whole
    std::string name(neighbourPrefix);
    for (const auto byte : random) {
        name += digits[byte % digits.size()];
    }
    return name;
}

tl::unexpected<Problem> cannotOpen(const fs::path& path, const std::string& reason) {
    return problem("cannot use the folder " + path.string() + ": " + reason);
}

std::string errorText() {
    return std::generic_category().message(errno);
}

bool writeAll(int file, std::string_view text) {
    while (!text.empty()) {
        const auto count = ::write(file, text.data(), text.size());
        if (count < 0) {
            return false;
        }
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace

Result<Folder> Folder::open(const fs::path& path, mode_t mode) {
    std::error_code failure;
    if (fs::create_directories(path, failure)) {
        static_cast<void>(::chmod(path.c_str(), mode)); // it is new, so nobody has laid a link there
    }
    FileDescriptor directory(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!directory.isOpen()) {
        return cannotOpen(path, errorText());
    }
    return Folder(std::move(directory));
}

Result<Folder> Folder::openShared(const fs::path& path) {
    return open(path, everybodysFolder);
}

Result<Folder> Folder::openOwn(const fs::path& path) {
    auto folder = open(path, ownFolder);
    if (!folder) {
        return folder;
    }

    struct stat status {};

    if (::fstat(folder->number(), &status) != 0 || ::fchmod(folder->number(), ownFolder) != 0) {
        return cannotOpen(path, errorText());
    }
    if (status.st_uid != ::geteuid()) {
        return cannotOpen(path, "it belongs to another user");
    }
    return folder;
}

bool Folder::openToEverybody() const {
    return ::fchmod(directory_.number(), everybodysFolder) == 0;
}

std::optional<std::string> Folder::read(const char* name) const {
    const auto file = openRegularWithin(directory_.number(), name);

    struct stat status {};

    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 ||
        std::cmp_greater(status.st_size, longestFile)) {
        return std::nullopt;
    }
    std::string text(longestFile + 1, '\0'); // it may have grown since
    const auto length = ::read(file.number(), text.data(), text.size());
    if (length < 0 || std::cmp_greater(length, longestFile)) {
        return std::nullopt;
    }
    text.resize(static_cast<std::size_t>(length));
    text.shrink_to_fit();
    return text;
}

std::string Folder::writeNeighbour(std::string_view content, mode_t mode, Durability durability) const {
    auto name = neighbourName();
    const FileDescriptor file(::openat(directory_.number(), name.c_str(),
                                       O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, ownFile));
    if (!file.isOpen()) {
        return {};
    }
    const bool written = writeAll(file.number(), content) && ::fchmod(file.number(), mode) == 0 &&
                         (durability == Durability::afterCrash || ::fsync(file.number()) == 0);
    if (!written) {
        remove(name);
        return {};
    }
    return name;
}

// Some file systems write a new file to the disk at once, and wait for that, when it is renamed over another
// one. Where both change places, it goes there with all the others, or never, as the next one comes sooner.
bool Folder::takePlaceOfFile(const std::string& neighbour, const char* name) const {
    const int folder = directory_.number();

    struct stat status {};

    if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISREG(status.st_mode) ||
        ::renameat2(folder, neighbour.c_str(), folder, name, RENAME_EXCHANGE) != 0) {
        return false;
    }
    remove(neighbour);
    return true;
}

bool Folder::replace(const char* name, std::string_view content, mode_t mode, Durability durability) const {
    const auto neighbour = writeNeighbour(content, mode, durability);
    if (neighbour.empty()) {
        return false;
    }
    if (durability == Durability::afterCrash && takePlaceOfFile(neighbour, name)) {
        return true;
    }
    if (::renameat(directory_.number(), neighbour.c_str(), directory_.number(), name) != 0) {
        remove(neighbour);
        return false;
    }
    return durability == Durability::afterCrash || ::fsync(directory_.number()) == 0;
}

std::optional<Folder::Displaced> Folder::exchange(const char* name, std::string_view content,
                                                  mode_t mode) const {
    const auto neighbour = writeNeighbour(content, mode, Durability::afterCrash);
    if (neighbour.empty()) {
        return std::nullopt;
    }
    const int folder = directory_.number();
    if (::renameat2(folder, neighbour.c_str(), folder, name, RENAME_EXCHANGE) == 0) {
        return Displaced{.name = neighbour, .content = read(neighbour.c_str())};
    }
    // A file system that cannot do it in one step leaves a moment between these two.
    if (errno == EINVAL || errno == ENOSYS) {
        Displaced displaced{.content = read(name)};
        if (::renameat(folder, neighbour.c_str(), folder, name) == 0) {
            return displaced;
        }
    }
    remove(neighbour);
    return std::nullopt;
}

void Folder::remove(const std::string& name) const {
    if (::unlinkat(directory_.number(), name.c_str(), 0) != 0) {
        ::unlinkat(directory_.number(), name.c_str(), AT_REMOVEDIR); // what somebody else laid there
    }
}

void Folder::discard(const Displaced& displaced) const {
    if (!displaced.name.empty()) {
        remove(displaced.name);
    }
}

std::vector<std::string> Folder::leftoverNames() const {
    // A full folder must not keep the helper from its work; a sudden end leaves two.
    constexpr int mostEntries = 4096;
    constexpr std::size_t mostNames = 64;
    std::vector<std::string> names;
    const int again = ::openat(directory_.number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(again < 0 ? nullptr : ::fdopendir(again), ::closedir);
    for (int count = 0; entries && count < mostEntries && names.size() < mostNames; ++count) {
        const auto* const entry = ::readdir(entries.get());
        if (entry == nullptr) {
            break;
        }
        if (const std::string name = entry->d_name; name.rfind(neighbourPrefix, 0) == 0) {
            names.push_back(name);
        }
    }
    return names;
}

std::vector<std::string> Folder::leftovers() const {
    std::vector<std::string> contents;
    for (const auto& name : leftoverNames()) {
        if (auto content = read(name.c_str())) {
            contents.push_back(std::move(*content));
        }
    }
    return contents;
}

void Folder::removeLeftovers() const {
    for (const auto& name : leftoverNames()) {
        remove(name);
    }
}

bool Folder::isGone() const {
    struct stat status {};

    return ::fstat(directory_.number(), &status) != 0 || status.st_nlink == 0;
}

} // namespace quelby::limiter
