#include "platform/posix/child_process.h"

#include <cerrno>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ; // NOLINT(readability-redundant-declaration): POSIX has it, but in no header

namespace quelby {

namespace {

class NullStreams {
public:
    NullStreams() {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    }

    NullStreams(const NullStreams&) = delete;
    NullStreams& operator=(const NullStreams&) = delete;

    ~NullStreams() { posix_spawn_file_actions_destroy(&actions_); }

    [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

std::optional<int> exitStatusOf(pid_t process) {
    int status = 0;
    while (::waitpid(process, &status, 0) < 0) {
        if (errno != EINTR) {
            return std::nullopt;
        }
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace

std::optional<int> runToTheEnd(const std::vector<std::string>& words) {
    std::vector<std::string> copies = words; // what is handed on may be written to
    std::vector<char*> arguments;
    arguments.reserve(copies.size() + 1);
    for (auto& word : copies) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    const NullStreams streams;
    pid_t process = 0;
    if (words.empty() ||
        ::posix_spawnp(&process, arguments[0], streams.get(), nullptr, arguments.data(), environ) != 0) {
        return std::nullopt;
    }
    return exitStatusOf(process);
}

} // namespace quelby
