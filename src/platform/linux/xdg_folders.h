#pragma once

#include "platform/folders.h"

namespace quelby {

// The folders of the XDG Base Directory Specification: $XDG_DATA_HOME where it is an absolute path, as the
// standard demands, and ~/.local/share otherwise; likewise $XDG_CONFIG_HOME and ~/.config. Without $HOME the
// user database tells the home. Resources are in libexec/quelby, beside the folder with the program.
class XdgFolders final : public Folders {
public:
    [[nodiscard]] std::filesystem::path applicationSupport() override;
    [[nodiscard]] std::filesystem::path configuration() override;
    [[nodiscard]] std::filesystem::path helper() override;
    [[nodiscard]] std::optional<std::filesystem::path> resources() override;
    [[nodiscard]] std::filesystem::path program() override;
};

} // namespace quelby
