#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "platform/linux/processes/proc_directory.h"
#include "platform/linux/processes/process_table.h"

namespace quelby {

// What people call the applications that processes belong to.
class ApplicationNames {
public:
    // The folders with desktop entries, the most important first.
    explicit ApplicationNames(std::vector<std::filesystem::path> entryFolders)
        : entryFolders_(std::move(entryFolders)) {}

    // Gives the process the name of its application, or none. A desktop moves what it has started into its
    // own control group a moment later, so each process is looked at twice, and then no more.
    void look(Process& process, ProcDirectory& directory);

private:
    [[nodiscard]] const std::string& nameOf(const std::string& id);
    [[nodiscard]] std::string nameInFolders(const std::string& id) const;

    std::vector<std::filesystem::path> entryFolders_;
    std::map<std::string, std::string> known_; // by application; empty where no entry tells
};

} // namespace quelby
