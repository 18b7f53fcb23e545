// Small files that several programs and users read and replace at any time, without locks.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include <sys/types.h>

namespace quelby {

// What tells a file from the one that lay in its place before, and from itself before it was rewritten.
struct FileState {
    ino_t identity = 0; // of the file system; a file that takes another's place has its own
    off_t size = 0;     // bytes
    time_t seconds = 0; // of the last change of its content, with the nanoseconds
    long nanoseconds = 0;

    bool operator==(const FileState&) const = default;
};

// Of the file that a symbolic link leads to, too. All zero where there is none. Costs one `stat`.
[[nodiscard]] FileState stateOf(const std::filesystem::path& file);

// The whole content of a regular file, or of one that a symbolic link leads to. Nothing where there is none,
// where it cannot be read, and where it is longer (in bytes). Never waits, whatever lies there. A file that
// is being rewritten in place may give a part of its content.
[[nodiscard]] std::optional<std::string> readSharedFile(const std::filesystem::path& file,
                                                        std::size_t longest);

// Replaces the file, or makes it, readable and writable for everybody:
//
// 1. A new file takes its place at once, so that a reader finds the old or the new content. What a symbolic
//    link leads to is not touched.
//
// 2. Where the folder does not allow that, an existing regular file is rewritten in place, if this user may.
//    A reader may find the new content with the end of a longer old one. No link is followed.
//
// False where neither can be done; all is then as it was.
[[nodiscard]] bool writeSharedFile(const std::filesystem::path& file, std::string_view text);

} // namespace quelby
