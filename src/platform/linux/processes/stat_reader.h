#pragma once

#include <array>
#include <optional>
#include <string_view>

#include <sys/types.h>

#include "platform/linux/processes/proc_directory.h"

namespace quelby {

// Reads /proc/PID/stat of one process after another. Reading a file again that has been kept open costs half
// of opening, reading and closing it, so files are kept open as long as the program's other parts still have
// descriptors in plenty.
class StatReader {
public:
    explicit StatReader(ProcDirectory& directory) : directory_(directory) {}

    // Asks the system for the limit of descriptors; before that, no file is kept.
    void beginLook();

    // The beginning of the file, with all that parseStat() asks for, until the next call. Nothing for a
    // process that has ended or may not be seen. The kept file belongs to the caller, and to this pid: it is
    // used where it is open, and opened, kept or closed as needed.
    [[nodiscard]] std::optional<std::string_view> read(pid_t pid, FileDescriptor& kept);

private:
    [[nodiscard]] bool mayKeep(const FileDescriptor& file) const;

    ProcDirectory& directory_;
    int firstReservedDescriptor_ = 0;
    std::array<char, 1024> text_ = {};
};

} // namespace quelby
