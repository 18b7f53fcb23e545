#pragma once

#include <csignal>
#include <utility>

#include <sys/wait.h>
#include <unistd.h>

#include "platform/posix/pipe.h"
#include "support/started.h"

namespace quelby {

// Returns once nobody has the writing end any more.
inline void waitForEnd(const FileDescriptor& reading) {
    char text = 0;
    while (::read(reading.number(), &text, 1) > 0) {
    }
}

// A child that runs the body, and is ended at the latest when this goes.
class ChildProcess {
public:
    // Returns once the body has closed the descriptor that it is handed, which running a program does, too.
    template <typename Body>
    explicit ChildProcess(const Body& body) {
        Pipe started = makePipe();
        pid_ = quelby::started(::fork());
        if (pid_ == 0) {
            body(std::move(started.writeEnd));
            ::_exit(0);
        }
        started.writeEnd.close();
        waitForEnd(started.readEnd);
    }

    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ChildProcess(ChildProcess&&) = delete;
    ChildProcess& operator=(ChildProcess&&) = delete;

    ~ChildProcess() { end(); }

    [[nodiscard]] pid_t pid() const { return pid_; }

    void end() {
        if (const pid_t pid = std::exchange(pid_, -1); pid > 0) {
            ::kill(pid, SIGKILL);
            ::waitpid(pid, nullptr, 0);
        }
    }

private:
    pid_t pid_ = -1;
};

[[noreturn]] inline void rest(FileDescriptor ready) {
    ready.close();
    for (;;) {
        ::pause();
    }
}

} // namespace quelby
