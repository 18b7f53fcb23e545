#include "app/linux/session/window_system.h"

#include <string_view>

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <xcb/xinput.h>

#include "app/linux/session/x_connection.h"

namespace quelby::app {

namespace {

bool hasExtension(xcb_connection_t* connection, std::string_view name) {
    const auto cookie = xcb_query_extension(connection, static_cast<std::uint16_t>(name.size()), name.data());
    const XReply<xcb_query_extension_reply_t> reply(xcb_query_extension_reply(connection, cookie, nullptr));
    return reply && reply->present != 0;
}

std::string_view nameOf(const xcb_input_xi_device_info_t& device) {
    return {xcb_input_xi_device_info_name(&device), device.name_len};
}

// Only since version 23.1 it has an extension to be known by; before, its devices have names of their own.
bool hasDevicesOfXWayland(xcb_connection_t* connection) {
    const XReply<xcb_input_xi_query_version_reply_t> version(
        xcb_input_xi_query_version_reply(connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
    const XReply<xcb_input_xi_query_device_reply_t> devices(xcb_input_xi_query_device_reply(
        connection, xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL), nullptr));
    if (!devices) {
        return false;
    }
    for (auto rest = xcb_input_xi_query_device_infos_iterator(devices.get()); rest.rem > 0;
         xcb_input_xi_device_info_next(&rest)) {
        if (nameOf(*rest.data).starts_with("xwayland-")) {
            return true;
        }
    }
    return false;
}

bool isXWayland() {
    int screenNumber = 0;
    const auto connection = connectToX(screenNumber);
    return connection &&
           (hasExtension(connection.get(), "XWAYLAND") || hasDevicesOfXWayland(connection.get()));
}

} // namespace

WindowSystem windowSystem() {
    const auto platform = QGuiApplication::platformName();
    if (platform == QLatin1String("xcb")) {
        return isXWayland() ? WindowSystem::xWayland : WindowSystem::x11;
    }
    return platform.startsWith(QLatin1String("wayland")) ? WindowSystem::wayland : WindowSystem::none;
}

std::optional<QPoint> pointerPlace(WindowSystem system) {
    const auto position = QCursor::pos();
    const auto* const screen = QGuiApplication::screenAt(position);
    if (system != WindowSystem::x11 || screen == nullptr) {
        return std::nullopt;
    }
    const auto corner = screen->geometry().topLeft();
    return corner + (position - corner) * screen->devicePixelRatio();
}

} // namespace quelby::app
