#include "app/linux/tray/xembed_item.h"

#include <algorithm>
#include <array>
#include <string>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSocketNotifier>

#include "app/linux/session/x_connection.h"
#include "app/linux/tray/status_icon.h"
#include "ui/presentation/text/words.h"

namespace quelby::app {

namespace {

constexpr int fallbackHeight = 22; // until the tray says how much room there is
constexpr int lowestHeight = 12;   // trays pass through smaller ones on their way
constexpr std::uint32_t requestDock = 0;
constexpr std::uint32_t xembedMapped = 1;
constexpr xcb_button_t wheelUp = 4;
constexpr xcb_button_t wheelDown = 5;

class DockedItem final : public XEmbedItem {
public:
    DockedItem(XConnection connection, int screenNumber, Listener listener)
        : connection_(std::move(connection))
        , screen_(xScreen(connection_.get(), screenNumber))
        , listener_(std::move(listener))
        , readable_(xcb_get_file_descriptor(connection_.get()), QSocketNotifier::Read) {
        QObject::connect(&readable_, &QSocketNotifier::activated, &readable_, [this] { readEvents(); });
    }

    // Whether there is a tray, which then has been asked to take the window in.
    [[nodiscard]] bool askToBeDocked(int screenNumber) {
        const auto selection = xAtom(connection_.get(), "_NET_SYSTEM_TRAY_S" + std::to_string(screenNumber));
        const auto cookie = xcb_get_selection_owner(connection_.get(), selection);
        const XReply<xcb_get_selection_owner_reply_t> owner(
            xcb_get_selection_owner_reply(connection_.get(), cookie, nullptr));
        if (!owner || owner->owner == XCB_WINDOW_NONE) {
            return false;
        }
        tray_ = owner->owner;
        watch(tray_);
        createWindow();
        tellWantedSize();
        sendDockRequest();
        xcb_flush(connection_.get());
        return true;
    }

    void show(const ItemContent& content) override {
        content_ = content;
        const auto width =
            static_cast<std::uint32_t>(wideIcon(content.symbol, content.title, content.ink, height_).width());
        if (width != wantedWidth_) {
            wantedWidth_ = width;
            tellWantedSize();
            const std::uint32_t size[] = {width, static_cast<std::uint32_t>(height_)};
            xcb_configure_window(connection_.get(), window_,
                                 XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size);
        }
        draw();
    }

private:
    // The visual that the tray names has room for transparency; without one the screen's own is used.
    [[nodiscard]] xcb_visualid_t trayVisual() const {
        const auto cookie =
            xcb_get_property(connection_.get(), 0, tray_, xAtom(connection_.get(), "_NET_SYSTEM_TRAY_VISUAL"),
                             XCB_ATOM_VISUALID, 0, 1);
        const XReply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_.get(), cookie, nullptr));
        const bool known = reply && reply->type == XCB_ATOM_VISUALID && reply->value_len == 1;
        return known ? *static_cast<const xcb_visualid_t*>(xcb_get_property_value(reply.get()))
                     : screen_->root_visual;
    }

    [[nodiscard]] std::uint8_t depthOf(xcb_visualid_t visual) const {
        for (auto depths = xcb_screen_allowed_depths_iterator(screen_); depths.rem > 0;
             xcb_depth_next(&depths)) {
            for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0;
                 xcb_visualtype_next(&visuals)) {
                if (visuals.data->visual_id == visual) {
                    return depths.data->depth;
                }
            }
        }
        return screen_->root_depth;
    }

    void watch(xcb_window_t window) const {
        const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection_.get(), window, XCB_CW_EVENT_MASK, &mask);
    }

    void createWindow() {
        const auto visual = trayVisual();
        depth_ = depthOf(visual);
        const auto colormap = xcb_generate_id(connection_.get());
        xcb_create_colormap(connection_.get(), XCB_COLORMAP_ALLOC_NONE, colormap, screen_->root, visual);
        window_ = xcb_generate_id(connection_.get());
        const std::uint32_t values[] = {
            0, 0, XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_STRUCTURE_NOTIFY,
            colormap};
        xcb_create_window(connection_.get(), depth_, window_, screen_->root, 0, 0, fallbackHeight,
                          fallbackHeight, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                          XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
                          values);
        const auto info = xAtom(connection_.get(), "_XEMBED_INFO");
        const std::uint32_t versionAndFlags[] = {0, xembedMapped};
        xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, info, info, 32, 2,
                            versionAndFlags);
        xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NAME,
                            XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(words::program.size()),
                            words::program.data());
        graphics_ = xcb_generate_id(connection_.get());
        xcb_create_gc(connection_.get(), graphics_, window_, 0, nullptr);
    }

    // Trays make room by the hints of the window (ICCCM, 4.1.2.3).
    void tellWantedSize() const {
        constexpr std::uint32_t minimumAndBase = 1U << 4U | 1U << 8U;
        const auto height = static_cast<std::uint32_t>(height_);
        std::array<std::uint32_t, 18> hints{};
        hints[0] = minimumAndBase;
        hints[5] = hints[15] = wantedWidth_;
        hints[6] = hints[16] = height;
        xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NORMAL_HINTS,
                            XCB_ATOM_WM_SIZE_HINTS, 32, hints.size(), hints.data());
    }

    void sendDockRequest() const {
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = tray_;
        message.type = xAtom(connection_.get(), "_NET_SYSTEM_TRAY_OPCODE");
        message.data.data32[0] = XCB_CURRENT_TIME;
        message.data.data32[1] = requestDock;
        message.data.data32[2] = window_;
        xcb_send_event(connection_.get(), 0, tray_, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char*>(&message));
    }

    void readEvents() {
        while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())}) {
            if (!handle(*event)) {
                return; // this object may be gone now
            }
        }
        if (xcb_connection_has_error(connection_.get()) != 0) {
            readable_.setEnabled(false); // which would have no end
            listener_.lost();
        }
    }

    // False when the tray is lost.
    bool handle(const xcb_generic_event_t& event) {
        switch (event.response_type & 0x7F) {
        case XCB_EXPOSE:
            draw();
            break;
        case XCB_CONFIGURE_NOTIFY:
            resize(reinterpret_cast<const xcb_configure_notify_event_t&>(event));
            break;
        case XCB_BUTTON_PRESS:
            press(reinterpret_cast<const xcb_button_press_event_t&>(event));
            break;
        case XCB_DESTROY_NOTIFY:
            listener_.lost();
            return false;
        default:
            break;
        }
        return true;
    }

    void resize(const xcb_configure_notify_event_t& event) {
        const bool changed = event.width != width_ || event.height != height_;
        if (event.window != window_ || !changed || event.height < lowestHeight) {
            return;
        }
        width_ = event.width;
        height_ = event.height;
        show(content_);
    }

    void press(const xcb_button_press_event_t& event) const {
        if (event.detail == wheelUp || event.detail == wheelDown) {
            listener_.scrolled(event.detail == wheelUp ? -1 : 1);
        } else if (event.detail < wheelUp) {
            listener_.pressed({event.root_x, event.root_y});
        }
    }

    void draw() {
        const int needed = static_cast<int>(wantedWidth_);
        const bool transparent = depth_ == 32;
        const auto ink = transparent ? content_.ink : StatusInk{lightInk, std::nullopt}; // on its own ground
        const auto icon = width_ >= needed
                              ? wideIcon(content_.symbol, content_.title, ink, height_)
                              : compactIcon(content_.symbol, content_.title, ink, std::min(width_, height_));
        QImage picture(width_, height_, QImage::Format_ARGB32_Premultiplied);
        picture.fill(transparent ? Qt::transparent : Qt::black);
        QPainter painter(&picture);
        painter.drawImage((width_ - icon.width()) / 2, (height_ - icon.height()) / 2, icon);
        painter.end();
        xcb_put_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window_, graphics_,
                      static_cast<std::uint16_t>(width_), static_cast<std::uint16_t>(height_), 0, 0, 0,
                      depth_, static_cast<std::uint32_t>(picture.sizeInBytes()), picture.constBits());
        xcb_flush(connection_.get());
    }

    XConnection connection_;
    xcb_screen_t* screen_; // owned by the connection
    Listener listener_;
    QSocketNotifier readable_;
    xcb_window_t tray_ = XCB_WINDOW_NONE;
    xcb_window_t window_ = XCB_WINDOW_NONE;
    xcb_gcontext_t graphics_ = 0;
    std::uint8_t depth_ = 0;
    int width_ = fallbackHeight;
    int height_ = fallbackHeight;
    std::uint32_t wantedWidth_ = fallbackHeight; // pixels, for the symbol with the title beside it
    ItemContent content_;
};

} // namespace

std::unique_ptr<XEmbedItem> XEmbedItem::dock(Listener listener) {
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        return nullptr; // some compositors start a server of X for whoever looks for one
    }
    int screenNumber = 0;
    auto connection = connectToX(screenNumber);
    if (!connection) {
        return nullptr;
    }
    auto item = std::make_unique<DockedItem>(std::move(connection), screenNumber, std::move(listener));
    if (!item->askToBeDocked(screenNumber)) {
        return nullptr;
    }
    return item;
}

} // namespace quelby::app
