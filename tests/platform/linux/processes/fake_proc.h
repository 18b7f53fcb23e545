#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkdtemp() is not in <cstdlib>
#include <sys/types.h>

#include <fmt/format.h>

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

// A /proc in a temporary folder, removed at the end.
class FakeProc {
public:
    FakeProc() {
        auto name = (std::filesystem::temp_directory_path() / "fake-proc-XXXXXX").string();
        parent_ = ::mkdtemp(name.data());
        makeRoot();
    }

    FakeProc(const FakeProc&) = delete;
    FakeProc& operator=(const FakeProc&) = delete;
    FakeProc(FakeProc&&) = delete;
    FakeProc& operator=(FakeProc&&) = delete;

    ~FakeProc() { std::filesystem::remove_all(parent_); }

    [[nodiscard]] std::filesystem::path root() const { return parent_ / "proc"; }

    void makeRoot() const { std::filesystem::create_directory(root()); }

    void removeRoot() const { std::filesystem::remove_all(root()); }

    // Files are written in place, so whoever has them open reads the new text.
    void set(const FakeProcess& process) const { write(process.pid, "stat", statOf(process)); }

    void write(pid_t pid, std::string_view name, std::string_view text) const {
        std::filesystem::create_directory(folderOf(pid));
        std::ofstream(folderOf(pid) / name, std::ios::binary) << text;
    }

    void setExecutable(pid_t pid, const std::string& target) const {
        std::filesystem::create_symlink(target, folderOf(pid) / "exe");
    }

    void setUptime(double seconds) const {
        std::ofstream(root() / "uptime") << fmt::format("{:.2f} 12.34\n", seconds);
    }

    void remove(pid_t pid) const { std::filesystem::remove_all(folderOf(pid)); }

    [[nodiscard]] std::filesystem::path folderOf(pid_t pid) const { return root() / fmt::to_string(pid); }

private:
    std::filesystem::path parent_;
};

} // namespace quelby
