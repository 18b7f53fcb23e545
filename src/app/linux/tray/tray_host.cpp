#include "app/linux/tray/tray_host.h"

namespace quelby::app {

TrayHost trayHost(std::string_view processName) {
    if (processName == "gnome-shell") {
        return {.icon = IconForm::symbol, .showsLabel = true, .wantsMenu = false, .pressMustFail = true};
    }
    if (processName.starts_with("ayatana-indicat")) {
        return {.icon = IconForm::file, .showsLabel = true, .knowsCoordinates = false};
    }
    if (processName.starts_with("notification-ar") || processName == "waybar") {
        return {.icon = IconForm::wide, .knowsCoordinates = false};
    }
    return {};
}

} // namespace quelby::app
