// The folder through which this program and the charge-limit helper talk, any number of users with one helper
// that runs as root:
//
//   config.json   what the helper is to do; written by this program, of which several may run
//   status.json   what it is doing; written by the helper alone
//   details.json  the same for people, and which version it is; written by the helper alone
//
// Nobody locks anything. Whoever reads a file that is not whole passes over it, and reads again in time.
// Whoever changes config.json reads it just before, and leaves what it was not asked to change.
#pragma once

#include <filesystem>

#include "platform/helper_folder.h"
#include "platform/posix/shared_file.h"

namespace quelby {

class HelperFiles final : public HelperFolder {
public:
    explicit HelperFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

    // Nothing also where a file is longer than 64 KiB. None waits, whatever lies there.
    [[nodiscard]] std::optional<std::string> config() override;
    [[nodiscard]] std::optional<std::string> status() override;
    [[nodiscard]] std::optional<std::string> details() override;

    // One `stat` each.
    [[nodiscard]] bool configChanged() override;
    [[nodiscard]] bool detailsChanged() override;

    // A folder that it makes is open to everybody, and so is the file, whatever the process's umask.
    [[nodiscard]] Result<void> replaceConfig(std::string_view text) override;

private:
    [[nodiscard]] std::filesystem::path configFile() const { return folder_ / "config.json"; }

    [[nodiscard]] std::filesystem::path detailsFile() const { return folder_ / "details.json"; }

    std::filesystem::path folder_;
    // None before the first look.
    std::optional<FileState> configSeen_;
    std::optional<FileState> detailsSeen_;
};

} // namespace quelby
