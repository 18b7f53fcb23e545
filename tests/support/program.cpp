#include "support/program.h"
#include "platform/posix/pipe.h"
#include "support/started.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>

namespace quelby {

namespace {

constexpr int patience = 20'000; // milliseconds; far more than anything here takes, also under a sanitizer

std::string readToTheEnd(int file) {
    std::string text;
    std::array<char, 4096> buffer{};
    for (ssize_t count = 0; (count = ::read(file, buffer.data(), buffer.size())) > 0;) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return text;
}

} // namespace

void become(const std::vector<std::string>& words, const Environment& environment) {
    for (const auto& [name, value] : environment) {
        ::setenv(name.c_str(), value.c_str(), 1);
    }
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const auto& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    ::execv(arguments[0], arguments.data());
    ::_exit(127);
}

int exitStatusOf(pid_t process) {
    int status = 0;
    ::waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

ProgramResult runProgram(const std::vector<std::string>& words, const Environment& environment) {
    Pipe output = makePipe();
    Pipe errors = makePipe();
    const pid_t process = started(::fork());
    if (process == 0) {
        const FileDescriptor nothing(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        ::dup2(nothing.number(), STDIN_FILENO);
        ::dup2(output.writeEnd.number(), STDOUT_FILENO);
        ::dup2(errors.writeEnd.number(), STDERR_FILENO);
        become(words, environment);
    }
    output.writeEnd.close();
    errors.writeEnd.close();
    ProgramResult result;
    std::thread reader([&] { result.errors = readToTheEnd(errors.readEnd.number()); });
    result.output = readToTheEnd(output.readEnd.number());
    reader.join();
    result.exitStatus = exitStatusOf(process);
    return result;
}

TerminalProgram::TerminalProgram(const std::vector<std::string>& words, int columns, int rows,
                                 const Environment& environment) {
    winsize size{};
    size.ws_col = static_cast<unsigned short>(columns);
    size.ws_row = static_cast<unsigned short>(rows);
    int terminal = -1;
    process_ = started(::forkpty(&terminal, nullptr, nullptr, &size));
    if (process_ == 0) {
        ::setenv("TERM", "xterm-256color", 1);
        become(words, environment);
    }
    terminal_ = FileDescriptor(terminal);
}

// Asked and not killed, so that it leaves behind what it always does, the counts of its lines among it.
TerminalProgram::~TerminalProgram() {
    if (process_ > 0) {
        signal(SIGTERM);
        signal(SIGCONT); // or else it would stay as it was stopped
        static_cast<void>(end());
    }
}

bool TerminalProgram::readMore(std::string& shown) const {
    pollfd waiting{terminal_.number(), POLLIN, 0};
    if (::poll(&waiting, 1, patience) <= 0) {
        ADD_FAILURE() << "nothing more is shown after: " << shown;
        return false;
    }
    std::array<char, 4096> buffer{};
    const auto count = ::read(terminal_.number(), buffer.data(), buffer.size());
    if (count <= 0) {
        return false; // a terminal without a program reads as an error
    }
    shown.append(buffer.data(), static_cast<std::size_t>(count));
    return true;
}

std::string TerminalProgram::showsUntil(const std::string& text) {
    while (unread_.find(text) == std::string::npos) {
        if (!readMore(unread_)) {
            ADD_FAILURE() << '"' << text << "\" is not shown in: " << unread_;
            return std::exchange(unread_, {});
        }
    }
    const auto end = unread_.find(text) + text.size();
    auto shown = unread_.substr(0, end);
    unread_.erase(0, end);
    return shown;
}

void TerminalProgram::type(const std::string& keys) const {
    EXPECT_EQ(::write(terminal_.number(), keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
}

void TerminalProgram::resize(int columns, int rows) const {
    winsize size{};
    size.ws_col = static_cast<unsigned short>(columns);
    size.ws_row = static_cast<unsigned short>(rows);
    ::ioctl(terminal_.number(), TIOCSWINSZ, &size);
}

void TerminalProgram::signal(int number) const {
    if (process_ > 0) {
        ::kill(process_, number);
    }
}

void TerminalProgram::waitUntilStopped() const {
    int status = 0;
    EXPECT_EQ(::waitpid(process_, &status, WUNTRACED), process_);
    EXPECT_TRUE(WIFSTOPPED(status));
}

bool TerminalProgram::echoes() const {
    termios settings{};
    return ::tcgetattr(terminal_.number(), &settings) == 0 && (settings.c_lflag & ECHO) != 0;
}

ProgramResult TerminalProgram::end() {
    ProgramResult result{.output = std::exchange(unread_, {})};
    while (readMore(result.output)) {
    }
    result.exitStatus = exitStatusOf(std::exchange(process_, -1));
    return result;
}

} // namespace quelby
