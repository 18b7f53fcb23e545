#include "platform/linux/settings_program.h"

#include <array>
#include <filesystem>

#include <unistd.h>

namespace quelby {

namespace {

struct DesktopCommand {
    std::string_view desktop;
    std::string_view program;
    std::string_view page; // its argument; empty for programs that show nothing else
};

constexpr std::array knownCommands{
    DesktopCommand{"GNOME", "gnome-control-center", "power"},
    DesktopCommand{"Budgie", "budgie-control-center", "power"},
    DesktopCommand{"Budgie", "gnome-control-center", "power"},
    DesktopCommand{"KDE", "systemsettings", "kcm_powerdevilprofilesconfig"},
    DesktopCommand{"KDE", "systemsettings5", "kcm_powerdevilprofilesconfig"},
    DesktopCommand{"XFCE", "xfce4-power-manager-settings", ""},
    DesktopCommand{"MATE", "mate-power-preferences", ""},
    DesktopCommand{"LXQt", "lxqt-config-powermanagement", ""},
    DesktopCommand{"X-Cinnamon", "cinnamon-settings", "power"},
};

CommandWords wordsOf(const DesktopCommand& command) {
    CommandWords words{std::string(command.program)};
    if (!command.page.empty()) {
        words.emplace_back(command.page);
    }
    return words;
}

std::vector<std::string_view> partsOf(std::string_view list) {
    std::vector<std::string_view> parts;
    for (;;) {
        const auto colon = list.find(':');
        parts.push_back(list.substr(0, colon));
        if (colon == std::string_view::npos) {
            return parts;
        }
        list.remove_prefix(colon + 1);
    }
}

bool isProgram(const std::filesystem::path& path) {
    std::error_code failure;
    return std::filesystem::is_regular_file(path, failure) && ::access(path.c_str(), X_OK) == 0;
}

} // namespace

std::vector<CommandWords> batterySettingsCommands(std::string_view currentDesktop) {
    std::vector<CommandWords> commands;
    for (const auto desktop : partsOf(currentDesktop)) {
        for (const auto& known : knownCommands) {
            if (known.desktop == desktop) {
                commands.push_back(wordsOf(known));
            }
        }
    }
    return commands;
}

CommandWords firstCommandFound(const std::vector<CommandWords>& commands, std::string_view folders) {
    for (const auto& command : commands) {
        for (const auto folder : partsOf(folders)) {
            const auto program = std::filesystem::path(folder) / command.front();
            if (program.is_absolute() && isProgram(program)) {
                auto found = command;
                found.front() = program.string();
                return found;
            }
        }
    }
    return {};
}

} // namespace quelby
