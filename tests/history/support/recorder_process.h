#pragma once

#include "support/program.h"

namespace quelby {

// One of the built programs at work, with its output in a pipe and nothing on standard input.
class RecorderProcess {
public:
    // The environment is added to the test's own.
    explicit RecorderProcess(const std::vector<std::string>& words, const Environment& environment = {});
    RecorderProcess(const RecorderProcess&) = delete;
    RecorderProcess& operator=(const RecorderProcess&) = delete;
    ~RecorderProcess(); // kills the program

    // Reads until so many lines have come in all, or the output ends.
    void readLines(std::ptrdiff_t count);

    // Lines read so far, each with its newline.
    [[nodiscard]] std::ptrdiff_t lines() const;

    // Leaves it no time to do anything, reads what it still had written, and gives all of its output.
    ProgramResult kill();

private:
    // False at the end of the output.
    bool readMore();

    FileDescriptor output_;
    pid_t process_ = -1;
    std::string text_;
};

} // namespace quelby
