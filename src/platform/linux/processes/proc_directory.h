// The files below a /proc, with which every reader of processes gets on where descriptors run out.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include <sys/types.h>

#include "platform/posix/file_descriptor.h"

namespace quelby {

// Keeps the directory open, and beside it a spare descriptor, which it gives up when the program (or the
// whole system) has none left: then one file at a time can still be opened and read.
class ProcDirectory {
public:
    explicit ProcDirectory(std::filesystem::path root) : root_(std::move(root)) {}

    // Every process that can be seen, in ascending order, in place of what was in the list. False where the
    // directory cannot be read; each call tries anew.
    [[nodiscard]] bool listPids(std::vector<pid_t>& pids);

    // A closed descriptor where there is no such file, or no right to read it. The name is one of a kernel
    // interface, such as "stat".
    [[nodiscard]] FileDescriptor openOf(pid_t pid, std::string_view name);
    [[nodiscard]] FileDescriptor open(const char* name);

    // Where the link points, as a part of the buffer; nothing also where it does not fit.
    [[nodiscard]] std::optional<std::string_view> linkOf(pid_t pid, std::string_view name,
                                                         std::span<char> buffer) const;
    [[nodiscard]] std::optional<std::string_view> link(const char* name, std::span<char> buffer) const;

    // The spare descriptor had to be given up: a file that stays open now would be the last.
    [[nodiscard]] bool isShortOfDescriptors() const { return !spare_.isOpen(); }

    // This /proc is of the kernel's own making and numbers processes as the program's system calls do (that
    // of another container, or a copy, does not).
    [[nodiscard]] bool isOwnKernels() const;

private:
    [[nodiscard]] bool reopen();
    [[nodiscard]] bool readPids(std::vector<pid_t>& pids) const;

    std::filesystem::path root_;
    FileDescriptor directory_;
    FileDescriptor spare_;
};

// The beginning of the file, as a part of the buffer. Nothing where it cannot be read; for the files of a
// process, that is one which has ended.
[[nodiscard]] std::optional<std::string_view> readBeginning(const FileDescriptor& file,
                                                            std::span<char> buffer);

} // namespace quelby
