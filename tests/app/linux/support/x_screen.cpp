#include "app/linux/support/x_screen.h"

#include <algorithm>
#include <csignal>

#include <gtest/gtest.h>

#include "app/linux/support/eventually.h"

namespace quelby {

using app::xAtom;
using app::XReply;

namespace {

// By their names, wherever they are installed.
std::vector<std::string> named(std::vector<std::string> words) {
    words.insert(words.begin(), "/usr/bin/env");
    return words;
}

} // namespace

std::optional<std::string> XScreen::missing() {
    for (const auto* const program : {"Xvfb", "openbox", "xdotool"}) {
        if (!isInstalled(program)) {
            return program;
        }
    }
    return std::nullopt;
}

// Without what nobody uses here and takes longest to start: the server's OpenGL, and the manager's composed characters.
XScreen::XScreen()
    : server_(named({"Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
                     "-noreset", "-extension", "GLX"}))
    , display_(':' + server_.line())
    , manager_(named({"openbox"}),
               {{"DISPLAY", display_}, {"XDG_CONFIG_HOME", "/nonexistent"}, {"LC_ALL", "C"}})
    , connection_(xcb_connect(display_.c_str(), nullptr))
    , root_(app::xScreen(connection_.get(), 0)->root) {
    EXPECT_TRUE(eventually([&] { return !property(root_, "_NET_SUPPORTING_WM_CHECK").empty(); }));
    setSettings({{"Net/DoubleClickTime", 0}});
}

void XScreen::setSettings(const XSettingValues& values) {
    auto* const x = connection_.get();
    const bool first = settings_ == XCB_WINDOW_NONE;
    if (first) {
        settings_ = xcb_generate_id(x);
        xcb_create_window(x, XCB_COPY_FROM_PARENT, settings_, root_, -1, -1, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    }
    const auto bytes = xSettingsProperty(values);
    const auto type = xAtom(x, "_XSETTINGS_SETTINGS");
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, settings_, type, type, 8,
                        static_cast<std::uint32_t>(bytes.size()), bytes.constData());
    if (first) {
        const auto selection = xAtom(x, "_XSETTINGS_S0");
        xcb_set_selection_owner(x, settings_, selection, XCB_CURRENT_TIME);
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = root_;
        message.type = xAtom(x, "MANAGER");
        message.data.data32[1] = selection;
        message.data.data32[2] = settings_;
        xcb_send_event(x, 0, root_, XCB_EVENT_MASK_STRUCTURE_NOTIFY, reinterpret_cast<const char*>(&message));
    }
    xcb_flush(x);
}

void XScreen::end() {
    server_.signal(SIGTERM);
    static_cast<void>(server_.end());
}

std::vector<std::uint32_t> XScreen::property(xcb_window_t window, const char* name) const {
    const auto cookie =
        xcb_get_property(connection_.get(), 0, window, xAtom(connection_.get(), name), XCB_ATOM_ANY, 0, 1024);
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_.get(), cookie, nullptr));
    if (!reply || reply->format != 32) {
        return {};
    }
    const auto* const values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}

std::string XScreen::nameOf(xcb_window_t window) const {
    const auto cookie =
        xcb_get_property(connection_.get(), 0, window, XCB_ATOM_WM_NAME, XCB_ATOM_ANY, 0, 1024);
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_.get(), cookie, nullptr));
    return reply ? std::string(static_cast<const char*>(xcb_get_property_value(reply.get())),
                               static_cast<std::size_t>(xcb_get_property_value_length(reply.get())))
                 : std::string();
}

std::optional<QRect> XScreen::shownArea(xcb_window_t window) const {
    auto* const x = connection_.get();
    const auto askedState = xcb_get_window_attributes(x, window);
    const auto askedSize = xcb_get_geometry(x, window);
    const auto askedPlace = xcb_translate_coordinates(x, window, root_, 0, 0);
    const XReply<xcb_get_window_attributes_reply_t> state(
        xcb_get_window_attributes_reply(x, askedState, nullptr));
    const XReply<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(x, askedSize, nullptr));
    const XReply<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(x, askedPlace, nullptr));
    if (!state || state->map_state != XCB_MAP_STATE_VIEWABLE || !size || !place) {
        return std::nullopt;
    }
    return QRect(place->dst_x, place->dst_y, size->width, size->height);
}

std::vector<XWindow> XScreen::windows() const {
    std::vector<XWindow> found;
    for (const auto window : property(root_, "_NET_CLIENT_LIST")) {
        if (const auto area = shownArea(window); area && nameOf(window) == "Quelby") {
            found.push_back({window, *area});
        }
    }
    return found;
}

std::optional<XWindow> XScreen::docked() const {
    return windows().empty() ? dockedBelow(root_) : std::nullopt;
}

std::optional<XWindow> XScreen::dockedBelow(xcb_window_t window) const {
    if (const auto area = shownArea(window); area && nameOf(window) == "Quelby") {
        return XWindow{window, *area};
    }
    const XReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection_.get(), xcb_query_tree(connection_.get(), window), nullptr));
    if (!tree) {
        return std::nullopt;
    }
    const auto* const children = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        if (const auto found = dockedBelow(children[i])) {
            return found;
        }
    }
    return std::nullopt;
}

bool XScreen::hasTray() const {
    const auto selection = xAtom(connection_.get(), "_NET_SYSTEM_TRAY_S0");
    const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection_.get(), xcb_get_selection_owner(connection_.get(), selection), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

bool XScreen::hasKeyboard(const XWindow& window) const {
    const XReply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    return focus && focus->focus == window.id;
}

bool XScreen::hasFrame(const XWindow& window) const {
    const auto extents = property(window.id, "_NET_FRAME_EXTENTS");
    return std::any_of(extents.begin(), extents.end(), [](std::uint32_t extent) { return extent > 1; });
}

bool XScreen::isOutOfWindowLists(const XWindow& window) const {
    const auto states = property(window.id, "_NET_WM_STATE");
    const auto has = [&](const char* name) {
        return std::count(states.begin(), states.end(), xAtom(connection_.get(), name)) == 1;
    };
    return has("_NET_WM_STATE_SKIP_TASKBAR") && has("_NET_WM_STATE_SKIP_PAGER");
}

void XScreen::announceBlur() {
    auto* const x = connection_.get();
    const auto compositor = xcb_generate_id(x);
    xcb_create_window(x, XCB_COPY_FROM_PARENT, compositor, root_, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(x, compositor, xAtom(x, "_NET_WM_CM_S0"), XCB_CURRENT_TIME);
    const auto property = xAtom(x, "_KDE_NET_WM_BLUR_BEHIND_REGION");
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, root_, property, property, 8, 0, nullptr);
    xcb_flush(x);
}

QRect XScreen::blurredBehind(const XWindow& window) const {
    const auto numbers = property(window.id, "_KDE_NET_WM_BLUR_BEHIND_REGION");
    QRect area;
    for (std::size_t i = 0; i + 3 < numbers.size(); i += 4) {
        area |= QRect(static_cast<int>(numbers[i]), static_cast<int>(numbers[i + 1]),
                      static_cast<int>(numbers[i + 2]), static_cast<int>(numbers[i + 3]));
    }
    return area;
}

void XScreen::takeKeyboardAway() const {
    xcb_set_input_focus(connection_.get(), XCB_INPUT_FOCUS_PARENT, root_, XCB_CURRENT_TIME);
    xcb_flush(connection_.get());
}

void XScreen::byHand(std::vector<std::string> words) const {
    words.insert(words.begin(), "xdotool");
    EXPECT_EQ(runProgram(named(std::move(words)), {{"DISPLAY", display_}}).exitStatus, 0);
}

void XScreen::press(QPoint where) const {
    byHand({"mousemove", std::to_string(where.x()), std::to_string(where.y()), "click", "1"});
}

void XScreen::type(const std::string& key) const {
    byHand({"key", key});
}

void XScreen::closeByItsFrame(const XWindow& window) const {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window.id;
    message.type = xAtom(connection_.get(), "_NET_CLOSE_WINDOW");
    xcb_send_event(connection_.get(), 0, root_,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection_.get());
}

} // namespace quelby
