#include "support/running_program.h"

#include <array>
#include <csignal>
#include <filesystem>
#include <sstream>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/posix/pipe.h"
#include "support/started.h"

namespace quelby {

namespace {

constexpr int patience = 30'000; // milliseconds; far more than anything here takes, also under a sanitizer

bool isReadable(const FileDescriptor& file, int milliseconds) {
    pollfd waiting{file.number(), POLLIN, 0};
    return ::poll(&waiting, 1, milliseconds) > 0;
}

} // namespace

RunningProgram::RunningProgram(const std::vector<std::string>& words, const Environment& environment)
    : errors_(::memfd_create("errors", MFD_CLOEXEC)) {
    Pipe output = makePipe();
    process_ = started(::fork());
    if (process_ == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        const FileDescriptor nothing(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        ::dup2(nothing.number(), STDIN_FILENO);
        ::dup2(output.writeEnd.number(), STDOUT_FILENO);
        ::dup2(errors_.number(), STDERR_FILENO);
        become(words, environment);
    }
    output_ = std::move(output.readEnd);
    life_ = FileDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, process_, 0)));
}

RunningProgram::~RunningProgram() {
    if (process_ > 0) {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
}

void RunningProgram::signal(int number) const {
    if (process_ > 0) {
        ::kill(process_, number);
    }
}

bool RunningProgram::readMore() {
    std::array<char, 4096> buffer{};
    const auto count =
        isReadable(output_, patience) ? ::read(output_.number(), buffer.data(), buffer.size()) : 0;
    unread_.append(buffer.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return count > 0;
}

std::string RunningProgram::line() {
    while (unread_.find('\n') == std::string::npos) {
        if (!readMore()) {
            ADD_FAILURE() << "no line comes after \"" << unread_ << "\"; its errors: " << errors();
            return std::exchange(unread_, {});
        }
    }
    const auto end = unread_.find('\n');
    auto text = unread_.substr(0, end);
    unread_.erase(0, end + 1);
    return text;
}

std::string RunningProgram::errors() const {
    std::string text;
    std::array<char, 4096> buffer{};
    for (ssize_t count = 0; (count = ::pread(errors_.number(), buffer.data(), buffer.size(),
                                             static_cast<off_t>(text.size()))) > 0;) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return text;
}

bool RunningProgram::hasEnded() const {
    return process_ < 0 || isReadable(life_, 0);
}

ProgramResult RunningProgram::end() {
    ProgramResult result;
    if (!isReadable(life_, patience)) {
        ADD_FAILURE() << "it does not end; its errors: " << errors();
        return result;
    }
    result.exitStatus = exitStatusOf(std::exchange(process_, -1));
    while (readMore()) {
    }
    result.output = std::exchange(unread_, {});
    result.errors = errors();
    return result;
}

bool isInstalled(const std::string& program) {
    const auto* const path = std::getenv("PATH");
    std::istringstream folders(path == nullptr ? "" : path);
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (::access((std::filesystem::path(folder) / program).c_str(), X_OK) == 0) {
            return true;
        }
    }
    return false;
}

} // namespace quelby
