#include "app/linux/popover/sway_focus.h"

#include <string>
#include <string_view>

#include <QSocketNotifier>
#include <nlohmann/json.hpp>

#include "app/linux/popover/sway_socket.h"

namespace quelby::app {

namespace {

bool tellsOfFocus(std::string_view content) {
    const auto json = nlohmann::json::parse(content, nullptr, false);
    return json.is_object() && json.value("change", std::string()) == "focus";
}

class Subscription final : public SwayFocus {
public:
    Subscription(std::unique_ptr<SwaySocket> sway, std::function<void()> moved)
        : sway_(std::move(sway)), moved_(std::move(moved)), readable_(sway_->file(), QSocketNotifier::Read) {
        QObject::connect(&readable_, &QSocketNotifier::activated, &readable_, [this] { read(); });
    }

private:
    void read() {
        if (!sway_->receive()) {
            readable_.setEnabled(false);
            return;
        }
        if (takeMessages()) {
            const auto moved = moved_; // a copy: calling it may end this object
            moved();
        }
    }

    // Whether any of them tells of the focus.
    bool takeMessages() {
        bool told = false;
        while (const auto message = sway_->next()) {
            told = told || (message->isEvent && tellsOfFocus(message->content));
        }
        return told;
    }

    std::unique_ptr<SwaySocket> sway_;
    std::function<void()> moved_;
    QSocketNotifier readable_;
};

} // namespace

std::unique_ptr<SwayFocus> SwayFocus::watch(std::function<void()> moved) {
    auto sway = SwaySocket::connect();
    if (!sway || !sway->send(SwaySocket::Request::subscribe, R"(["window","workspace"])")) {
        return nullptr;
    }
    return std::make_unique<Subscription>(std::move(sway), std::move(moved));
}

} // namespace quelby::app
