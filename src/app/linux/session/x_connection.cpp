#include "app/linux/session/x_connection.h"

namespace quelby::app {

XConnection connectToX(int& screenNumber) {
    XConnection connection(xcb_connect(nullptr, &screenNumber)); // an object also where it fails
    return xcb_connection_has_error(connection.get()) != 0 ? nullptr : std::move(connection);
}

xcb_screen_t* xScreen(xcb_connection_t* connection, int screenNumber) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int number = 0; number < screenNumber && screens.rem > 1; ++number) {
        xcb_screen_next(&screens);
    }
    return screens.data;
}

xcb_atom_t xAtom(xcb_connection_t* connection, std::string_view name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

} // namespace quelby::app
