#include "platform/linux/processes/application_names.h"

#include <algorithm>
#include <array>

#include <fcntl.h>

#include "platform/linux/processes/application_id.h"
#include "platform/linux/processes/short_name.h"

namespace quelby {

namespace {

constexpr int looksAtEach = 2;
constexpr std::size_t longestEntry = 65536; // bytes that are read of one

std::string nameIn(const std::filesystem::path& file) {
    const FileDescriptor opened(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    std::vector<char> buffer(longestEntry);
    const auto text = opened.isOpen() ? readBeginning(opened, buffer) : std::nullopt;
    return text ? std::string(desktopEntryName(*text)) : std::string();
}

// An entry below a folder has a dash where the folder ends.
std::vector<std::string> filesOf(const std::string& id) {
    std::vector<std::string> files{id + ".desktop"};
    if (const auto dash = id.find('-'); dash != std::string::npos) {
        files.push_back(id.substr(0, dash) + '/' + id.substr(dash + 1) + ".desktop");
    }
    return files;
}

} // namespace

void ApplicationNames::look(Process& process, ProcDirectory& directory) {
    if (process.looksForApplication >= looksAtEach) {
        return;
    }
    std::array<char, 4096> buffer;
    const auto cgroups = readBeginning(directory.openOf(process.pid, "cgroup"), buffer);
    const auto id = cgroups ? applicationId(*cgroups) : std::string();
    process.application = id.empty() ? std::string() : nameOf(id);
    ++process.looksForApplication;
}

const std::string& ApplicationNames::nameOf(const std::string& id) {
    const auto known = known_.find(id);
    return known != known_.end() ? known->second : known_.try_emplace(id, nameInFolders(id)).first->second;
}

std::string ApplicationNames::nameInFolders(const std::string& id) const {
    if (id.find('/') != std::string::npos) {
        return {};
    }
    for (const auto& folder : entryFolders_) {
        for (const auto& file : filesOf(id)) {
            if (const auto name = nameIn(folder / file); !name.empty()) {
                return listedName(name);
            }
        }
    }
    return {};
}

} // namespace quelby
