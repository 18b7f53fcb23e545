// Runs one of the built programs as another process.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

#include "platform/posix/file_descriptor.h"

namespace quelby {

struct ProgramResult {
    int exitStatus = -1; // 128 plus the number of the signal that ended it
    std::string output;
    std::string errors;
};

using Environment = std::map<std::string, std::string>;

// Runs the program to its end, with nothing on standard input. The environment is added to the test's own.
[[nodiscard]] ProgramResult runProgram(const std::vector<std::string>& words,
                                       const Environment& environment = {});

// Turns this process, a new one, into the program.
[[noreturn]] void become(const std::vector<std::string>& words, const Environment& environment);

// Waits for its end. 128 plus the number of the signal that ended it.
[[nodiscard]] int exitStatusOf(pid_t process);

// A program at work in a terminal of its own.
class TerminalProgram {
public:
    TerminalProgram(const std::vector<std::string>& words, int columns, int rows,
                    const Environment& environment = {});
    TerminalProgram(const TerminalProgram&) = delete;
    TerminalProgram& operator=(const TerminalProgram&) = delete;
    ~TerminalProgram(); // ends the program, which has to heed SIGTERM

    // Reads what the program shows until the text comes, and gives all of it; fails the test after some
    // seconds.
    std::string showsUntil(const std::string& text);

    void type(const std::string& keys) const;
    void resize(int columns, int rows) const;
    void signal(int number) const;

    // Returns when the program has been stopped, as by SIGSTOP.
    void waitUntilStopped() const;

    // Whether what is typed is shown, as in a terminal that nobody has changed.
    [[nodiscard]] bool echoes() const;

    // What the program still shows up to its end, and how it ends.
    [[nodiscard]] ProgramResult end();

private:
    // False at the end of what is shown.
    bool readMore(std::string& shown) const;

    FileDescriptor terminal_;
    pid_t process_ = -1;
    std::string unread_; // shown, and not yet handed out
};

} // namespace quelby
