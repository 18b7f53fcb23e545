// A folder that other programs, and perhaps enemies, write into at any time.
//
// It is held open as a directory, and everything happens within it: a name is never followed to another
// place, neither by a link nor by something that is mounted over it, and nothing is ever written in place. So
// whoever may write into the folder decides at most what is read from it.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

#include "base/problem.h"
#include "platform/posix/file_descriptor.h"

namespace quelby::limiter {

inline constexpr mode_t everybodysFolder = 0777;
inline constexpr mode_t ownFolder = 0700;
inline constexpr mode_t everybodysFile = 0666;
inline constexpr mode_t readableFile = 0644;
inline constexpr mode_t ownFile = 0600;

// Whether new content has to outlive a loss of power.
enum class Durability { afterCrash, afterLossOfPower };

class Folder {
public:
    static constexpr std::size_t longestFile = std::size_t{64} * 1024; // bytes

    // A folder for everybody. Made, with the folders on its way, where it is missing; one that is there keeps
    // its mode. The problem says which path cannot be opened and why; a link at its end is one reason.
    [[nodiscard]] static Result<Folder> openShared(const std::filesystem::path& path);

    // A folder for this user alone, whatever its mode was before; one of another user is refused.
    [[nodiscard]] static Result<Folder> openOwn(const std::filesystem::path& path);

    // Lets everybody write into it; false where that is not this user's to decide.
    bool openToEverybody() const;

    // The whole content of a regular file of this folder, of longestFile bytes at most; nothing for anything
    // else that the name may stand for. Never waits.
    [[nodiscard]] std::optional<std::string> read(const char* name) const;

    // Puts a new file in the place of the named one. Nothing has changed where this fails, as it does when
    // the folder is gone, the disk is full, or a directory has the name.
    [[nodiscard]] bool replace(const char* name, std::string_view content, mode_t mode,
                               Durability durability) const;

    // The same, in one step with laying aside what was there: nothing that others write meanwhile is lost.
    // What was laid aside stays in the folder, also after a sudden end, until it is discarded.
    struct Displaced {
        std::string name;                   // empty where it is gone
        std::optional<std::string> content; // as read() gives it
    };

    [[nodiscard]] std::optional<Displaced> exchange(const char* name, std::string_view content,
                                                    mode_t mode) const;
    void discard(const Displaced& displaced) const;

    // The contents of what a process that was killed in the middle of replace() or exchange() left behind, so
    // far as they can be read; a few at the most.
    [[nodiscard]] std::vector<std::string> leftovers() const;
    void removeLeftovers() const;

    // Somebody removed the folder; all that is written from now on would be lost.
    [[nodiscard]] bool isGone() const;

    [[nodiscard]] int number() const { return directory_.number(); }

private:
    explicit Folder(FileDescriptor directory) : directory_(std::move(directory)) {}

    static Result<Folder> open(const std::filesystem::path& path, mode_t mode);

    [[nodiscard]] std::vector<std::string> leftoverNames() const;

    // The name of a new file with the content, or an empty text.
    [[nodiscard]] std::string writeNeighbour(std::string_view content, mode_t mode,
                                             Durability durability) const;
    [[nodiscard]] bool takePlaceOfFile(const std::string& neighbour, const char* name) const;
    void remove(const std::string& name) const;

    FileDescriptor directory_;
};

} // namespace quelby::limiter
