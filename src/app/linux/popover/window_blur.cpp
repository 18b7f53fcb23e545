#include "app/linux/popover/window_blur.h"

#include <vector>

#include <QGuiApplication>
#include <QPainterPath>

#include "app/linux/session/x_connection.h"

namespace quelby::app {

namespace {

// Of windows, with the part; of the root window, without, to say that there is a compositor that looks for it.
constexpr std::string_view blurProperty = "_KDE_NET_WM_BLUR_BEHIND_REGION";

bool isAnnounced(xcb_connection_t* connection, xcb_atom_t property) {
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto cookie = xcb_get_property(connection, 0, root, property, XCB_ATOM_ANY, 0, 0);
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
    return reply && reply->type != XCB_ATOM_NONE;
}

std::vector<std::uint32_t> asNumbers(const QRegion& part) {
    std::vector<std::uint32_t> numbers;
    for (const auto& rectangle : part) {
        for (const int number : {rectangle.x(), rectangle.y(), rectangle.width(), rectangle.height()}) {
            numbers.push_back(static_cast<std::uint32_t>(number));
        }
    }
    return numbers;
}

} // namespace

QRegion insideOfCorners(QSize size, double radius) {
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(), size), radius, radius);
    return {path.toFillPolygon().toPolygon()};
}

bool askForBlur(QWindow& window, double radius) {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    auto* const connection = x11 == nullptr ? nullptr : x11->connection();
    if (connection == nullptr) {
        return false;
    }
    const auto property = xAtom(connection, blurProperty);
    if (!isAnnounced(connection, property)) {
        return false;
    }
    const double pixels = window.devicePixelRatio();
    const auto part = asNumbers(insideOfCorners((QSizeF(window.size()) * pixels).toSize(), radius * pixels));
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
                        property, XCB_ATOM_CARDINAL, 32, static_cast<std::uint32_t>(part.size()),
                        part.data());
    return true;
}

} // namespace quelby::app
