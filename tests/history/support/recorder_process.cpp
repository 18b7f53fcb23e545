#include "recorder_process.h"
#include "support/started.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace quelby {

namespace {

[[noreturn]] void become(const std::vector<std::string>& words, const Environment& environment, int output) {
    for (const auto& [name, value] : environment) {
        ::setenv(name.c_str(), value.c_str(), 1);
    }
    const int nothing = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::dup2(nothing, STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const auto& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    ::execv(arguments[0], arguments.data());
    ::_exit(127);
}

} // namespace

RecorderProcess::RecorderProcess(const std::vector<std::string>& words, const Environment& environment) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        ADD_FAILURE() << "no pipe";
        return;
    }
    output_ = FileDescriptor(ends[0]);
    const FileDescriptor writing(ends[1]);
    process_ = started(::fork());
    if (process_ == 0) {
        become(words, environment, writing.number());
    }
}

RecorderProcess::~RecorderProcess() {
    if (process_ > 0) {
        static_cast<void>(kill());
    }
}

void RecorderProcess::readLines(std::ptrdiff_t count) {
    while (lines() < count && readMore()) {
    }
}

std::ptrdiff_t RecorderProcess::lines() const {
    return std::count(text_.begin(), text_.end(), '\n');
}

ProgramResult RecorderProcess::kill() {
    if (process_ <= 0) {
        return {};
    }
    ::kill(process_, SIGKILL);
    while (readMore()) {
    }
    int status = 0;
    ::waitpid(std::exchange(process_, -1), &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), text_, {}};
}

bool RecorderProcess::readMore() {
    std::array<char, 4096> buffer{};
    const auto count = ::read(output_.number(), buffer.data(), buffer.size());
    if (count <= 0) {
        return false;
    }
    text_.append(buffer.data(), static_cast<std::size_t>(count));
    return true;
}

} // namespace quelby
