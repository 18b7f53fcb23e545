#pragma once

#include "platform/folders.h"

namespace quelby {

// The folders of the XDG Base Directory Specification: $XDG_DATA_HOME where it is an absolute path, as the
// standard demands, and ~/.local/share otherwise. Without $HOME the user database tells the home.
class XdgFolders final : public Folders {
public:
    [[nodiscard]] std::filesystem::path applicationSupport() override;
};

} // namespace quelby
