#include "platform/battery_settings.h"

#include <cstdlib>

#include "platform/linux/detached_program.h"
#include "platform/linux/settings_program.h"

namespace quelby {

namespace {

std::string_view variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string_view() : value;
}

} // namespace

void openBatterySettings() {
    const auto command =
        firstCommandFound(batterySettingsCommands(variable("XDG_CURRENT_DESKTOP")), variable("PATH"));
    if (!command.empty()) {
        startDetached(command);
    }
}

} // namespace quelby
