#include "platform/linux/processes/short_name.h"

#include <algorithm>
#include <climits>

#include "base/number_text.h"
#include "base/utf8.h"

namespace quelby {

namespace {

constexpr std::string_view blanks = " \t\n";
constexpr std::string_view blanksAndSlash = " \t\n/";

std::string_view lastPart(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

std::string_view nameInArgument(std::string_view comm, std::string_view argument) {
    const auto command = argument.substr(0, argument.find_first_of(blanks));
    const auto name = argument.substr(command.size() - lastPart(command).size());
    if (!name.starts_with(comm)) {
        return {};
    }
    const auto rest = name.substr(comm.size());
    const auto length = comm.size() + std::min(rest.find_first_of(blanksAndSlash), rest.size());
    return length <= NAME_MAX ? name.substr(0, length) : std::string_view{};
}

} // namespace

bool mayBeCut(std::string_view comm) {
    return comm.size() == 15;
}

std::string_view nameFromExecutable(std::string_view comm, std::string_view path) {
    constexpr std::string_view deleted = " (deleted)";
    if (path.ends_with(deleted)) {
        path.remove_suffix(deleted.size());
    }
    const auto name = lastPart(path);
    return name.starts_with(comm) ? name : std::string_view{};
}

std::string_view nameFromCommandLine(std::string_view comm, std::string_view commandLine) {
    constexpr int interpreterOptionAndScript = 3;
    for (int i = 0; i < interpreterOptionAndScript && !commandLine.empty(); ++i) {
        const auto argument = commandLine.substr(0, commandLine.find('\0'));
        const auto name = nameInArgument(comm, argument);
        const bool script = i > 0 && !argument.starts_with('-');
        if (!name.empty() || script) {
            return name;
        }
        commandLine.remove_prefix(std::min(argument.size() + 1, commandLine.size()));
    }
    return {};
}

std::string listedName(std::string_view name) {
    return withoutBlanks(name).empty() ? "?" : printable(name);
}

} // namespace quelby
