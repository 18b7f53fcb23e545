#include "platform/linux/processes/proc_directory.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstddef>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/vfs.h>

namespace quelby {

namespace {

std::optional<pid_t> pidNamed(std::string_view name) {
    pid_t pid = 0;
    const auto* const end = name.data() + name.size();
    const auto [stop, error] = std::from_chars(name.data(), end, pid);
    return error == std::errc{} && stop == end && pid > 0 ? std::optional(pid) : std::nullopt;
}

// "PID/name", without an allocation.
class ProcessPath {
public:
    ProcessPath(pid_t pid, std::string_view name) {
        constexpr std::size_t longestPid = 10;
        auto* end = std::to_chars(text_.data(), text_.data() + longestPid, pid).ptr;
        *end++ = '/';
        end = std::copy_n(name.data(), std::min(name.size(), text_.size() - longestPid - 2), end);
        *end = '\0';
    }

    [[nodiscard]] const char* c_str() const { return text_.data(); }

private:
    std::array<char, 32> text_;
};

// The entries of one getdents64() answer, which are packed at their own lengths.
void addPids(std::span<const std::byte> entries, std::vector<pid_t>& pids) {
    while (!entries.empty()) {
        std::uint16_t length = 0;
        std::memcpy(&length, entries.data() + offsetof(dirent64, d_reclen), sizeof length);
        const auto* const name = reinterpret_cast<const char*>(entries.data() + offsetof(dirent64, d_name));
        if (const auto pid = pidNamed(name)) {
            pids.push_back(*pid);
        }
        entries = entries.subspan(length);
    }
}

} // namespace

bool ProcDirectory::listPids(std::vector<pid_t>& pids) {
    const bool listed = (directory_.isOpen() && readPids(pids)) || (reopen() && readPids(pids));
    if (!listed) {
        directory_.close();
        return false;
    }
    if (!spare_.isOpen()) {
        spare_ = FileDescriptor(::openat(directory_.number(), ".", O_PATH | O_CLOEXEC));
    }
    if (!std::is_sorted(pids.begin(), pids.end())) {
        std::sort(pids.begin(), pids.end());
    }
    return true;
}

bool ProcDirectory::reopen() {
    directory_ = FileDescriptor(::open(root_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return directory_.isOpen();
}

bool ProcDirectory::readPids(std::vector<pid_t>& pids) const {
    pids.clear();
    if (::lseek(directory_.number(), 0, SEEK_SET) != 0) {
        return false;
    }
    std::array<std::byte, 32768> entries;
    for (;;) {
        const auto length = ::getdents64(directory_.number(), entries.data(), entries.size());
        if (length <= 0) {
            return length == 0;
        }
        addPids(std::span(entries).first(static_cast<std::size_t>(length)), pids);
    }
}

FileDescriptor ProcDirectory::openOf(pid_t pid, std::string_view name) {
    return open(ProcessPath(pid, name).c_str());
}

FileDescriptor ProcDirectory::open(const char* name) {
    constexpr int readOnly = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    FileDescriptor file(::openat(directory_.number(), name, readOnly));
    if (!file.isOpen() && (errno == EMFILE || errno == ENFILE) && spare_.isOpen()) {
        spare_.close();
        file = FileDescriptor(::openat(directory_.number(), name, readOnly));
    }
    return file;
}

std::optional<std::string_view> ProcDirectory::linkOf(pid_t pid, std::string_view name,
                                                      std::span<char> buffer) const {
    return link(ProcessPath(pid, name).c_str(), buffer);
}

std::optional<std::string_view> ProcDirectory::link(const char* name, std::span<char> buffer) const {
    const auto length = ::readlinkat(directory_.number(), name, buffer.data(), buffer.size());
    if (length < 0 || static_cast<std::size_t>(length) == buffer.size()) {
        return std::nullopt;
    }
    return std::string_view(buffer.data(), static_cast<std::size_t>(length));
}

bool ProcDirectory::isOwnKernels() const {
    struct statfs system = {};
    if (::fstatfs(directory_.number(), &system) != 0 || system.f_type != PROC_SUPER_MAGIC) {
        return false;
    }
    std::array<char, 16> buffer;
    const auto self = link("self", buffer);
    return self && pidNamed(*self) == ::getpid();
}

std::optional<std::string_view> readBeginning(const FileDescriptor& file, std::span<char> buffer) {
    const auto length = ::pread(file.number(), buffer.data(), buffer.size(), 0);
    if (length < 0) {
        return std::nullopt;
    }
    return std::string_view(buffer.data(), static_cast<std::size_t>(length));
}

} // namespace quelby
