#include "app/linux/popover/outside_presses.h"

#include <QSocketNotifier>
#include <xcb/xinput.h>

#include "app/linux/session/x_connection.h"

namespace quelby::app {

namespace {

constexpr std::uint32_t firstWheelButton = 4;
constexpr std::uint32_t lastWheelButton = 7;

class RawPresses final : public OutsidePresses {
public:
    RawPresses(XConnection connection, int screenNumber, Listener listener)
        : connection_(std::move(connection))
        , root_(xScreen(connection_.get(), screenNumber)->root)
        , listener_(std::move(listener))
        , readable_(xcb_get_file_descriptor(connection_.get()), QSocketNotifier::Read) {
        select();
        QObject::connect(&readable_, &QSocketNotifier::activated, &readable_, [this] { readEvents(); });
    }

private:
    void select() const {
        // The extension answers nothing to a client that has not said which version it speaks.
        const XReply<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
            connection_.get(), xcb_input_xi_query_version(connection_.get(), 2, 2), nullptr));

        struct {
            xcb_input_event_mask_t head;
            std::uint32_t mask;
        } const rawPresses = {{XCB_INPUT_DEVICE_ALL_MASTER, 1}, XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS};

        xcb_input_xi_select_events(connection_.get(), root_, 1, &rawPresses.head);
        xcb_flush(connection_.get());
    }

    void readEvents() {
        while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())}) {
            if (isPress(*event)) {
                const auto listener = listener_; // a copy: calling it may end this object
                listener(pointer());
                return;
            }
        }
    }

    static bool isPress(const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7F) != XCB_GE_GENERIC) {
            return false;
        }
        const auto& raw = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event);
        const bool wheel = raw.detail >= firstWheelButton && raw.detail <= lastWheelButton;
        return raw.event_type == XCB_INPUT_RAW_BUTTON_PRESS && !wheel;
    }

    // A raw event does not say where the pointer is.
    [[nodiscard]] QPoint pointer() const {
        const XReply<xcb_query_pointer_reply_t> reply(
            xcb_query_pointer_reply(connection_.get(), xcb_query_pointer(connection_.get(), root_), nullptr));
        return reply ? QPoint(reply->root_x, reply->root_y) : QPoint(-1, -1);
    }

    XConnection connection_;
    xcb_window_t root_;
    Listener listener_;
    QSocketNotifier readable_;
};

} // namespace

std::unique_ptr<OutsidePresses> OutsidePresses::watch(Listener listener) {
    int screenNumber = 0;
    auto connection = connectToX(screenNumber);
    if (!connection) {
        return nullptr;
    }
    return std::make_unique<RawPresses>(std::move(connection), screenNumber, std::move(listener));
}

} // namespace quelby::app
