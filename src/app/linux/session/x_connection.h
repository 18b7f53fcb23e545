#pragma once

#include <cstdlib>
#include <memory>
#include <string_view>

#include <xcb/xcb.h>

namespace quelby::app {

struct DisconnectX {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

using XConnection = std::unique_ptr<xcb_connection_t, DisconnectX>;

struct FreeXReply {
    void operator()(void* reply) const { std::free(reply); } // NOLINT(cppcoreguidelines-no-malloc): xcb's way
};

template <typename T>
using XReply = std::unique_ptr<T, FreeXReply>;

// To the display that the environment names; nothing where there is none.
[[nodiscard]] XConnection connectToX(int& screenNumber);

[[nodiscard]] xcb_screen_t* xScreen(xcb_connection_t* connection, int screenNumber);

[[nodiscard]] xcb_atom_t xAtom(xcb_connection_t* connection, std::string_view name);

} // namespace quelby::app
