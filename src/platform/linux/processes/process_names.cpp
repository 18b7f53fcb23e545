#include "platform/linux/processes/process_names.h"

#include <array>
#include <climits>

#include "platform/linux/processes/short_name.h"
#include "platform/linux/processes/stat_text.h"

namespace quelby {

namespace {

using Buffer = std::array<char, PATH_MAX>;

std::string_view executableName(pid_t pid, std::string_view comm, const ProcDirectory& directory,
                                Buffer& buffer) {
    const auto path = directory.linkOf(pid, "exe", buffer);
    return path ? nameFromExecutable(comm, *path) : std::string_view{};
}

std::string_view commandLineName(pid_t pid, std::string_view comm, ProcDirectory& directory, Buffer& buffer) {
    const auto file = directory.openOf(pid, "cmdline");
    const auto commandLine = readBeginning(file, buffer);
    return commandLine ? nameFromCommandLine(comm, *commandLine) : std::string_view{};
}

} // namespace

std::string processName(pid_t pid, std::string_view escapedComm, ProcDirectory& directory) {
    const auto comm = unescapedComm(escapedComm);
    if (!mayBeCut(comm)) {
        return listedName(comm);
    }
    Buffer buffer;
    auto name = executableName(pid, comm, directory, buffer);
    if (name.empty()) {
        name = commandLineName(pid, comm, directory, buffer);
    }
    return listedName(name.empty() ? comm : name);
}

} // namespace quelby
