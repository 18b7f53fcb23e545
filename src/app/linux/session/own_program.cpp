#include "app/linux/session/own_program.h"

#include <cerrno>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <fmt/format.h>
#include <unistd.h>

namespace quelby::app {

namespace {

// Leads to the file that runs, whatever has its name now.
constexpr auto running = "/proc/self/exe";

std::filesystem::path runningFile() {
    std::error_code ignored;
    return std::filesystem::read_symlink(running, ignored);
}

} // namespace

OwnProgram::OwnProgram() : file_(runningFile()) {}

bool OwnProgram::wasReplaced() const {
    std::error_code unreadable;
    return std::filesystem::exists(file_, unreadable) &&
           !std::filesystem::equivalent(running, file_, unreadable) && !unreadable;
}

Problem OwnProgram::startAnew(char** argv, const char* oneMore) const {
    std::vector<std::string> words{file_.string()};
    for (char** word = argv + 1; *word != nullptr; ++word) {
        if (std::string_view(*word) != oneMore) {
            words.emplace_back(*word);
        }
    }
    words.emplace_back(oneMore);
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (auto& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    ::execv(file_.c_str(), arguments.data());
    return {fmt::format("its new version \"{}\" cannot be started: {}", file_.string(),
                        std::generic_category().message(errno))};
}

} // namespace quelby::app
