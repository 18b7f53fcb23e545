#include "platform/linux/detached_program.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quelby {

namespace {

std::vector<char*> pointersTo(std::vector<std::string>& words) {
    std::vector<char*> pointers;
    for (auto& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

// Between fork() and exec(), where only what is safe in a signal handler may be called.
void forgetThisProgram() {
    const int nothing = ::open("/dev/null", O_RDWR);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        ::dup2(nothing, stream);
    }
    ::close_range(STDERR_FILENO + 1, ~0U, 0);
    std::signal(SIGPIPE, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

} // namespace

// The child in between ends at once, and leaves the program to the system.
void startDetached(const std::vector<std::string>& words) {
    auto copies = words;
    const auto arguments = pointersTo(copies);
    const pid_t between = ::fork();
    if (between == 0) {
        ::setsid();
        if (::fork() == 0) {
            forgetThisProgram();
            ::execv(arguments.front(), arguments.data());
        }
        ::_exit(0);
    }
    if (between > 0) {
        ::waitpid(between, nullptr, 0);
    }
}

} // namespace quelby
