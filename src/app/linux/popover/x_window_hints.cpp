#include "app/linux/popover/x_window_hints.h"

#include <array>

#include <QGuiApplication>

#include "app/linux/session/x_connection.h"

namespace quelby::app {

namespace {

// Qt's own: what is said on it stands before what Qt says afterwards.
xcb_connection_t* connectionOfQt() {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

} // namespace

void keepOutOfWindowLists(QWindow& window) {
    auto* const connection = connectionOfQt();
    if (connection == nullptr) {
        return;
    }
    const std::array states{xAtom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                            xAtom(connection, "_NET_WM_STATE_SKIP_PAGER")};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
                        xAtom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, states.size(), states.data());
}

void keepClear(QWindow& window) {
    if (auto* const connection = connectionOfQt()) {
        const std::uint32_t clear = 0;
        xcb_change_window_attributes(connection, static_cast<xcb_window_t>(window.winId()), XCB_CW_BACK_PIXEL,
                                     &clear);
    }
}

bool showsTransparency() {
    auto* const connection = connectionOfQt();
    if (connection == nullptr) {
        return true;
    }
    const auto cookie = xcb_get_selection_owner(connection, xAtom(connection, "_NET_WM_CM_S0"));
    const XReply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, cookie, nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace quelby::app
