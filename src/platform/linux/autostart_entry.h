#pragma once

#include <filesystem>
#include <string>

#include "platform/login_item.h"

namespace quelby {

// The autostart entry of the desktop (Desktop Application Autostart Specification): quelby.desktop in the
// folder `autostart` of the user's configuration folder.
class AutostartEntry final : public LoginItem {
public:
    // The user's configuration folder, and the program to start at login.
    AutostartEntry(const std::filesystem::path& configurationFolder, std::filesystem::path program);

    [[nodiscard]] bool registerProgram() override;
    [[nodiscard]] bool unregisterProgram() override;

private:
    std::filesystem::path file_;
    std::filesystem::path program_;
};

// The entry's text. Every path can be the program's, as the Desktop Entry Specification quotes it.
[[nodiscard]] std::string autostartText(const std::filesystem::path& program);

} // namespace quelby
