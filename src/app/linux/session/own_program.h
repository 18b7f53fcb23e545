// The file that this program was started from, which an upgrade replaces while the program goes on.
#pragma once

#include <filesystem>

#include "base/problem.h"

namespace quelby::app {

class OwnProgram {
public:
    OwnProgram(); // at the start, while the system still knows the file's name

    // Whether another file lies there now. It does not where there is none, as after a removal.
    [[nodiscard]] bool wasReplaced() const;

    // Goes on as the program that lies there now, with these arguments and one more. Returns only where it cannot.
    [[nodiscard]] Problem startAnew(char** argv, const char* oneMore) const;

private:
    std::filesystem::path file_; // empty where the system does not tell it
};

} // namespace quelby::app
