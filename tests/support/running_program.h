#pragma once

#include <string>
#include <vector>

#include "support/program.h"

namespace quelby {

// A program at work beside the test, with nothing on standard input. It goes with the test, whatever becomes
// of that.
class RunningProgram {
public:
    explicit RunningProgram(const std::vector<std::string>& words, const Environment& environment = {});
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram(); // ends the program

    [[nodiscard]] pid_t process() const { return process_; }

    void signal(int number) const;

    // The next line of its standard output, without the newline; fails the test after some seconds.
    [[nodiscard]] std::string line();

    // What it has written to standard error so far.
    [[nodiscard]] std::string errors() const;

    [[nodiscard]] bool hasEnded() const;

    // Waits for its end, and fails the test after some seconds. Its standard output is what line() left.
    [[nodiscard]] ProgramResult end();

private:
    [[nodiscard]] bool readMore();

    FileDescriptor output_;
    FileDescriptor errors_;
    pid_t process_ = -1;
    FileDescriptor life_; // readable once the program has ended
    std::string unread_;
};

// Whether a program of this name can be started.
[[nodiscard]] bool isInstalled(const std::string& program);

} // namespace quelby
