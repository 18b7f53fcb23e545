#pragma once

#include <filesystem>
#include <string>
#include <variant>

#include "base/problem.h"
#include "platform/helper_names.h"

namespace quelby::limiter {

enum class Task {
    serve,   // until it is asked to stop
    once,    // one round
    restore, // put back what was found at first
    release, // let the battery be charged where holding it needs a helper that has ended
};

struct Options {
    std::filesystem::path folder{linux_helper::folder};
    std::filesystem::path state{linux_helper::stateFolder};
    std::filesystem::path sysfsRoot{"/sys"};
    bool isElsewhere = false; // the folder or the state is a named one, and may be any user's
    Task task = Task::serve;
};

// What is only asked for: help, or the version. For standard output.
struct Information {
    std::string text;
};

// The words after the program's name. The problem is a wrong usage.
[[nodiscard]] Result<std::variant<Options, Information>> parseOptions(const std::vector<std::string>& words);

} // namespace quelby::limiter
