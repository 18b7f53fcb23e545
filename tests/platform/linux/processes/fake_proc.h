#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include <sys/types.h>

#include <fmt/format.h>

#include "support/temporary_folder.h"

namespace quelby {

struct FakeProcess {
    pid_t pid = 1;
    std::string comm = "editor";
    std::uint64_t usedTicks = 0;
    std::uint64_t startTicks = 0;
};

// The text of /proc/PID/stat, with the used ticks divided among user and system time.
inline std::string statOf(const FakeProcess& process) {
    const auto userTicks = process.usedTicks / 2;
    return fmt::format("{} ({}) S 1 1 1 0 -1 4194560 99 98 97 96 {} {} 88 77 20 0 3 0 {} 3133440 412 "
                       "18446744073709551615 1 1 0 0 0 0 0 0 0 0 0 0 17 1 0 0 0 0 0 0 0 0 0 0 0 0 0\n",
                       process.pid, process.comm, userTicks, process.usedTicks - userTicks,
                       process.startTicks);
}

// A /proc in a temporary folder.
class FakeProc {
public:
    FakeProc() { makeRoot(); }

    [[nodiscard]] std::filesystem::path root() const { return parent_.path() / "proc"; }

    void makeRoot() const { std::filesystem::create_directory(root()); }

    void removeRoot() const { std::filesystem::remove_all(root()); }

    // Files are written in place, so whoever has them open reads the new text.
    void set(const FakeProcess& process) const { write(process.pid, "stat", statOf(process)); }

    void write(pid_t pid, std::string_view name, std::string_view text) const {
        parent_.write(folderOf(pid) / name, text);
    }

    void setExecutable(pid_t pid, const std::string& target) const {
        std::filesystem::create_symlink(target, folderOf(pid) / "exe");
    }

    void setUptime(double seconds) const {
        parent_.write(root() / "uptime", fmt::format("{:.2f} 12.34\n", seconds));
    }

    void remove(pid_t pid) const { std::filesystem::remove_all(folderOf(pid)); }

    [[nodiscard]] std::filesystem::path folderOf(pid_t pid) const { return root() / fmt::to_string(pid); }

private:
    TemporaryFolder parent_{inMemory()};
};

} // namespace quelby
