#pragma once

#include <vector>

#include "platform/folders.h"

namespace quelby {

// The folders of the XDG Base Directory Specification: $XDG_DATA_HOME or else ~/.local/share, and
// $XDG_CONFIG_HOME or else ~/.config. A variable that holds no absolute path counts as unset, as the standard
// demands. Without $HOME the user database tells the home. Resources are in libexec/quelby, beside the folder
// with the program.
//
// Made when the program starts: afterwards the system no longer knows the path of a program that somebody has
// replaced or removed.
class XdgFolders final : public Folders {
public:
    // The link is the system's, to the program that runs.
    explicit XdgFolders(const std::filesystem::path& linkToProgram = "/proc/self/exe");

    [[nodiscard]] std::filesystem::path applicationSupport() override;
    [[nodiscard]] std::filesystem::path configuration() override;
    [[nodiscard]] std::filesystem::path helper() override;
    [[nodiscard]] std::optional<std::filesystem::path> resources() override;

    [[nodiscard]] std::filesystem::path program() override { return program_; }

private:
    std::filesystem::path program_;
};

// Where the desktop entries of applications lie, the user's own first: "applications" in the folder for data
// and in each of $XDG_DATA_DIRS, or else /usr/local/share and /usr/share.
[[nodiscard]] std::vector<std::filesystem::path> desktopEntryFolders();

} // namespace quelby
