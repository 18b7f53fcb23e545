#include "platform/posix/child_process.h"

#include <array>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/posix/pipe.h"

extern char** environ; // NOLINT(readability-redundant-declaration): POSIX has it, but in no header

namespace quelby {

namespace {

// The child's three standard streams: the null device, but for an output that somebody wants.
class Streams {
public:
    Streams() : Streams(nullptr) {}

    explicit Streams(const FileDescriptor& output) : Streams(&output) {}

    Streams(const Streams&) = delete;
    Streams& operator=(const Streams&) = delete;

    ~Streams() { posix_spawn_file_actions_destroy(&actions_); }

    [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    explicit Streams(const FileDescriptor* output) {
        posix_spawn_file_actions_init(&actions_);
        if (output != nullptr) {
            posix_spawn_file_actions_adddup2(&actions_, output->number(), STDOUT_FILENO);
        } else {
            posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        }
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    }

    posix_spawn_file_actions_t actions_{};
};

// Texts as exec() wants them; it may write to what it is given.
class TextVector {
public:
    explicit TextVector(std::vector<std::string> texts) : texts_(std::move(texts)) {
        pointers_.reserve(texts_.size() + 1);
        for (auto& text : texts_) {
            pointers_.push_back(text.data());
        }
        pointers_.push_back(nullptr);
    }

    [[nodiscard]] char* const* get() const { return pointers_.data(); }

private:
    std::vector<std::string> texts_;
    std::vector<char*> pointers_;
};

std::optional<pid_t> start(const std::vector<std::string>& words, const Streams& streams,
                           char* const* environment) {
    const TextVector arguments(words);
    pid_t process = 0;
    if (words.empty() || ::posix_spawnp(&process, arguments.get()[0], streams.get(), nullptr, arguments.get(),
                                        environment) != 0) {
        return std::nullopt;
    }
    return process;
}

std::optional<int> exitStatusOf(pid_t process) {
    int status = 0;
    while (::waitpid(process, &status, 0) < 0) {
        if (errno != EINTR) {
            return std::nullopt;
        }
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::optional<std::string> readToTheEnd(const FileDescriptor& file) {
    std::string text;
    std::array<char, 16 << 10> buffer{};
    for (;;) {
        const auto count = ::read(file.number(), buffer.data(), buffer.size());
        if (count > 0) {
            text.append(buffer.data(), static_cast<std::size_t>(count));
        } else if (count == 0) {
            return text;
        } else if (errno != EINTR) {
            return std::nullopt;
        }
    }
}

} // namespace

std::optional<int> runToTheEnd(const std::vector<std::string>& words) {
    const auto process = start(words, Streams(), environ);
    return process ? exitStatusOf(*process) : std::nullopt;
}

std::optional<std::string> outputOf(const std::vector<std::string>& words,
                                    const std::vector<std::string>& environment) {
    auto [readEnd, writeEnd] = makePipe();
    if (!readEnd.isOpen()) {
        return std::nullopt;
    }
    const auto process = start(words, Streams(writeEnd), TextVector(environment).get());
    if (!process) {
        return std::nullopt;
    }
    writeEnd.close(); // the end of the output comes when nobody can write any more
    // Before waiting for the exit: a long output would fill the pipe and hold the child up.
    auto output = readToTheEnd(readEnd);
    static_cast<void>(exitStatusOf(*process));
    return output;
}

std::vector<std::string> environmentVariables() {
    std::vector<std::string> variables;
    for (char** variable = environ; variable != nullptr && *variable != nullptr; ++variable) {
        variables.emplace_back(*variable);
    }
    return variables;
}

} // namespace quelby
