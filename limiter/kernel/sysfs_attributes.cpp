#include "limiter/kernel/sysfs_attributes.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quelby::limiter {

namespace {

constexpr int always = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

std::error_code lastError() {
    return {errno, std::generic_category()};
}

bool isRegular(int file) {
    struct stat status {};

    return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

std::string trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

} // namespace

Result<std::unique_ptr<SysfsAttributes>> SysfsAttributes::open(const std::filesystem::path& root) {
    FileDescriptor folder(::open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen()) {
        return problem("cannot read the devices in " + root.string() + ": " + lastError().message());
    }
    return std::unique_ptr<SysfsAttributes>(new SysfsAttributes(std::move(folder)));
}

std::vector<std::string> SysfsAttributes::names(const std::string& folder) const {
    std::vector<std::string> names;
    const int opened = ::openat(root_.number(), folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(opened < 0 ? nullptr : ::fdopendir(opened), ::closedir);
    if (!entries) {
        return names;
    }
    while (const auto* const entry = ::readdir(entries.get())) {
        if (entry->d_name[0] != '.') {
            names.emplace_back(entry->d_name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

bool SysfsAttributes::exists(const std::string& path) const {
    return ::faccessat(root_.number(), path.c_str(), F_OK, 0) == 0;
}

tl::expected<std::string, std::error_code> SysfsAttributes::read(const std::string& attribute) const {
    const FileDescriptor file(::openat(root_.number(), attribute.c_str(), O_RDONLY | always));
    if (!file.isOpen()) {
        return tl::make_unexpected(lastError());
    }
    if (!isRegular(file.number())) {
        return tl::make_unexpected(std::make_error_code(std::errc::invalid_argument));
    }
    std::array<char, 4096> text{}; // what the kernel gives at the most
    const auto length = ::read(file.number(), text.data(), text.size());
    if (length < 0) {
        return tl::make_unexpected(lastError());
    }
    return trimmed({text.data(), static_cast<std::size_t>(length)});
}

std::error_code SysfsAttributes::write(const std::string& attribute, const std::string& value) {
    const int file = ::openat(root_.number(), attribute.c_str(), O_WRONLY | O_TRUNC | always);
    if (file < 0) {
        return lastError();
    }
    const auto line = value + '\n';
    std::error_code failure;
    if (!isRegular(file)) {
        failure = std::make_error_code(std::errc::invalid_argument);
    } else if (const auto count = ::write(file, line.data(), line.size()); count < 0) {
        failure = lastError();
    } else if (static_cast<std::size_t>(count) != line.size()) {
        failure = std::make_error_code(std::errc::io_error);
    }
    // Owned by hand, as closing may fail as well, and tells what writing did not.
    if (::close(file) != 0 && !failure) {
        failure = lastError();
    }
    return failure;
}

} // namespace quelby::limiter
