#include "app/linux/tray/tray_host.h"

namespace quelby::app {

namespace {

constexpr WheelHabit downByNotch{WheelUnit::notch, true};
constexpr WheelHabit upByNotch{WheelUnit::notch, false};
constexpr WheelHabit upByAngle{WheelUnit::angle, false}; // Qt's

// XFCE runs each plugin in a process of its own, named after the plugin's number.
bool isPluginOfXfce(std::string_view processName) {
    return processName.starts_with("panel-") || processName == "xfce4-panel";
}

} // namespace

TrayHost trayHost(std::string_view processName) {
    if (processName == "gnome-shell") {
        return {.icon = IconForm::symbol,
                .showsLabel = true,
                .wantsMenu = false,
                .pressMustFail = true,
                .wheel = downByNotch,
                .panel = PanelStyle::dark};
    }
    if (processName.starts_with("ayatana-indicat")) {
        return {.icon = IconForm::file,
                .showsLabel = true,
                .knowsCoordinates = false,
                .wheel = downByNotch,
                .panel = PanelStyle::published};
    }
    if (processName.starts_with("notification-ar")) {
        return {.icon = IconForm::wide,
                .knowsCoordinates = false,
                .wheel = upByNotch,
                .panel = PanelStyle::published};
    }
    if (processName == "waybar") {
        return {.icon = IconForm::wide, .knowsCoordinates = false, .wheel = downByNotch};
    }
    if (isPluginOfXfce(processName)) {
        return {.readsAllAtOnce = true, .wheel = downByNotch};
    }
    if (processName == "xapp-sn-watcher") {
        return {.wheel = downByNotch};
    }
    if (processName == "lxqt-panel") {
        return {.readsTipTitle = true, .wheel = upByAngle, .panel = PanelStyle::lxqt};
    }
    if (processName.starts_with("kded") || processName == "plasmashell") {
        return {.wheel = upByAngle, .panel = PanelStyle::plasma};
    }
    return {};
}

} // namespace quelby::app
