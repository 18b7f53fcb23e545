#include "app/linux/session/startup_sequence.h"

#include <algorithm>
#include <string>
#include <utility>

#include "app/linux/session/x_connection.h"

namespace quelby::app {

std::vector<std::array<char, 20>> endOfStartup(std::string_view name) {
    std::string text = "remove: ID=\"";
    for (const char c : name) {
        if (c == '"' || c == '\\') {
            text += '\\';
        }
        text += c;
    }
    text += '"';
    std::vector<std::array<char, 20>> pieces;
    for (std::size_t start = 0; start <= text.size(); start += 20) { // one more where no zero would be left
        auto& piece = pieces.emplace_back();
        const auto part = text.substr(start, piece.size());
        std::copy(part.begin(), part.end(), piece.begin());
    }
    return pieces;
}

void endStartupSequence(std::string_view name) {
    int screenNumber = 0;
    const auto connection = connectToX(screenNumber);
    if (name.empty() || !connection) {
        return;
    }
    auto* const x = connection.get();
    const auto root = xScreen(x, screenNumber)->root;
    const auto window = xcb_generate_id(x); // by which the pieces are known to belong together
    xcb_create_window(x, XCB_COPY_FROM_PARENT, window, root, -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    auto type = xAtom(x, "_NET_STARTUP_INFO_BEGIN");
    const auto following = xAtom(x, "_NET_STARTUP_INFO");
    for (const auto& piece : endOfStartup(name)) {
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 8;
        message.window = window;
        message.type = std::exchange(type, following);
        std::copy(piece.begin(), piece.end(), std::begin(message.data.data8));
        xcb_send_event(x, 0, root, XCB_EVENT_MASK_PROPERTY_CHANGE, reinterpret_cast<const char*>(&message));
    }
    xcb_destroy_window(x, window);
    const XReply<xcb_get_input_focus_reply_t> done( // all of it has arrived before the connection ends
        xcb_get_input_focus_reply(x, xcb_get_input_focus(x), nullptr));
}

} // namespace quelby::app
