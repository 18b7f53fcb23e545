#include "app/linux/session/x_desktop.h"

#include <array>
#include <cstring>

#include <QSocketNotifier>

#include "app/linux/session/x_connection.h"

namespace quelby::app {

namespace {

// A property of whoever owns a selection of the screen.
struct Managed {
    xcb_atom_t selection = XCB_ATOM_NONE;
    xcb_atom_t property = XCB_ATOM_NONE;
    xcb_window_t owner = XCB_WINDOW_NONE;
    QByteArray value;
};

class ConnectedDesktop final : public XDesktop {
public:
    ConnectedDesktop(XConnection connection, int screenNumber, Listener listener)
        : connection_(std::move(connection))
        , root_(xScreen(connection_.get(), screenNumber)->root)
        , manager_(xAtom(connection_.get(), "MANAGER"))
        , listener_(std::move(listener))
        , readable_(xcb_get_file_descriptor(connection_.get()), QSocketNotifier::Read) {
        const auto number = std::to_string(screenNumber);
        watch(root_, XCB_EVENT_MASK_STRUCTURE_NOTIFY); // where managers say that they are there
        find(settings_, "_XSETTINGS_S" + number, "_XSETTINGS_SETTINGS");
        find(tray_, "_NET_SYSTEM_TRAY_S" + number, "_NET_SYSTEM_TRAY_COLORS");
        xSettings_ = XSettings(settings_.value);
        QObject::connect(&readable_, &QSocketNotifier::activated, &readable_, [this] { readEvents(); });
        // What has come in while the answers were waited for does not wake the notifier.
        QMetaObject::invokeMethod(
            &readable_, [this] { readEvents(); }, Qt::QueuedConnection);
    }

    [[nodiscard]] const XSettings& settings() const override { return xSettings_; }

    [[nodiscard]] std::optional<QRgb> trayInk() const override { return app::trayInk(tray_.value); }

private:
    void watch(xcb_window_t window, std::uint32_t events) const {
        xcb_change_window_attributes(connection_.get(), window, XCB_CW_EVENT_MASK, &events);
    }

    void find(Managed& managed, const std::string& selection, std::string_view property) {
        managed.selection = xAtom(connection_.get(), selection);
        managed.property = xAtom(connection_.get(), property);
        findOwner(managed);
    }

    void findOwner(Managed& managed) {
        auto* const x = connection_.get();
        const XReply<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(x, xcb_get_selection_owner(x, managed.selection), nullptr));
        managed.owner = reply ? reply->owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
        if (managed.owner != XCB_WINDOW_NONE) {
            watch(managed.owner, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        }
        readProperty(managed);
    }

    void readProperty(Managed& managed) {
        constexpr std::uint32_t everything = 1U << 18U; // in words of 32 bits, which is a megabyte
        managed.value.clear();
        if (managed.owner == XCB_WINDOW_NONE) {
            return;
        }
        auto* const x = connection_.get();
        const auto cookie =
            xcb_get_property(x, 0, managed.owner, managed.property, XCB_ATOM_ANY, 0, everything);
        const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(x, cookie, nullptr));
        if (reply) {
            managed.value = {static_cast<const char*>(xcb_get_property_value(reply.get())),
                             xcb_get_property_value_length(reply.get())};
        }
    }

    void readEvents() {
        bool settingsChanged = false;
        bool trayChanged = false;
        while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())}) {
            settingsChanged |= concerns(settings_, *event);
            trayChanged |= concerns(tray_, *event);
        }
        xcb_flush(connection_.get());
        if (xcb_connection_has_error(connection_.get()) != 0) {
            readable_.setEnabled(false);
            listener_.gone();
            return;
        }
        if (settingsChanged) {
            xSettings_ = XSettings(settings_.value);
            listener_.settingsChanged();
        }
        if (trayChanged) {
            listener_.trayChanged();
        }
    }

    // Whether the event changed it, which then has been read anew.
    [[nodiscard]] bool concerns(Managed& managed, const xcb_generic_event_t& event) {
        switch (event.response_type & 0x7F) {
        case XCB_CLIENT_MESSAGE: {
            const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
            if (message.type == manager_ && message.data.data32[1] == managed.selection) {
                findOwner(managed);
                return true;
            }
            return false;
        }
        case XCB_PROPERTY_NOTIFY: {
            const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
            if (change.window == managed.owner && change.atom == managed.property) {
                readProperty(managed);
                return true;
            }
            return false;
        }
        case XCB_DESTROY_NOTIFY:
            if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == managed.owner) {
                findOwner(managed);
                return true;
            }
            return false;
        default:
            return false;
        }
    }

    XConnection connection_;
    xcb_window_t root_;
    xcb_atom_t manager_;
    Listener listener_;
    QSocketNotifier readable_;
    Managed settings_;
    Managed tray_;
    XSettings xSettings_;
};

} // namespace

std::unique_ptr<XDesktop> XDesktop::connect(Listener listener) {
    int screenNumber = 0;
    auto connection = connectToX(screenNumber);
    return connection
               ? std::make_unique<ConnectedDesktop>(std::move(connection), screenNumber, std::move(listener))
               : nullptr;
}

std::optional<QRgb> trayInk(const QByteArray& property) {
    std::array<std::uint32_t, 12> parts{};
    if (property.size() != sizeof parts) {
        return std::nullopt;
    }
    std::memcpy(parts.data(), property.constData(),
                sizeof parts); // in this machine's order, as X hands it out
    bool allTheSame = true;
    for (std::size_t i = 3; i < parts.size(); ++i) {
        allTheSame = allTheSame && parts[i] == parts[i % 3];
    }
    const auto eightBits = [](std::uint32_t part) { return static_cast<int>((part & 0xFFFFU) >> 8U); };
    return allTheSame ? std::nullopt
                      : std::optional(qRgb(eightBits(parts[0]), eightBits(parts[1]), eightBits(parts[2])));
}

} // namespace quelby::app
