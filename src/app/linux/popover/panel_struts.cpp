#include "app/linux/popover/panel_struts.h"

#include <array>
#include <cstdint>

#include "app/linux/session/x_connection.h"

namespace quelby::app {

namespace {

constexpr std::uint32_t mostWindows = 1024;

// The order in which both properties name the edges.
constexpr std::array edges{Qt::LeftEdge, Qt::RightEdge, Qt::TopEdge, Qt::BottomEdge};

class Panels {
public:
    explicit Panels(XConnection connection, int screenNumber)
        : connection_(std::move(connection))
        , root_(xScreen(connection_.get(), screenNumber)->root)
        , partial_(xAtom(connection_.get(), "_NET_WM_STRUT_PARTIAL")) {}

    [[nodiscard]] PanelStruts read() const {
        PanelStruts found{.desktop = desktop(), .struts = {}};
        const auto list = ask(root_, xAtom(connection_.get(), "_NET_CLIENT_LIST"), mostWindows);
        const auto windows = answer(list);
        std::vector<xcb_get_property_cookie_t> asked; // all at once, so that it takes no longer than one
        asked.reserve(windows.size());
        for (const auto window : windows) {
            asked.push_back(ask(window, partial_, 12));
        }
        for (const auto& cookie : asked) {
            append(answer(cookie), found);
        }
        return found;
    }

private:
    [[nodiscard]] QSize desktop() const {
        const auto cookie = xcb_get_geometry(connection_.get(), root_);
        const XReply<xcb_get_geometry_reply_t> reply(
            xcb_get_geometry_reply(connection_.get(), cookie, nullptr));
        return reply ? QSize(reply->width, reply->height) : QSize();
    }

    [[nodiscard]] xcb_get_property_cookie_t ask(xcb_window_t window, xcb_atom_t property,
                                                std::uint32_t most) const {
        return xcb_get_property(connection_.get(), 0, window, property, XCB_ATOM_ANY, 0, most);
    }

    [[nodiscard]] std::vector<std::uint32_t> answer(xcb_get_property_cookie_t cookie) const {
        const XReply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_.get(), cookie, nullptr));
        if (!reply || reply->format != 32) {
            return {};
        }
        const auto* const values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
        return {values, values + reply->value_len};
    }

    // Four depths, and then for each edge where the panel begins and ends.
    static void append(const std::vector<std::uint32_t>& values, PanelStruts& found) {
        if (values.size() != 12) {
            return;
        }
        for (std::size_t i = 0; i < edges.size(); ++i) {
            if (values[i] > 0) {
                found.struts.push_back({edges.at(i), static_cast<int>(values[i]),
                                        static_cast<int>(values[4 + 2 * i]),
                                        static_cast<int>(values[5 + 2 * i])});
            }
        }
    }

    XConnection connection_;
    xcb_window_t root_;
    xcb_atom_t partial_;
};

} // namespace

PanelStruts panelStruts() {
    int screenNumber = 0;
    auto connection = connectToX(screenNumber);
    return connection ? Panels(std::move(connection), screenNumber).read() : PanelStruts();
}

} // namespace quelby::app
