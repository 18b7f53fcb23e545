#include "app/linux/popover/sway_focus.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include <QSocketNotifier>
#include <nlohmann/json.hpp>
#include <sys/socket.h>
#include <sys/un.h>

#include "platform/posix/file_descriptor.h"

namespace quelby::app {

namespace {

// As sway-ipc(7) has it: six letters, the length of what follows and its kind, both in the machine's order.
constexpr std::string_view magic = "i3-ipc";
constexpr std::size_t headSize = magic.size() + 2 * sizeof(std::uint32_t);
constexpr std::uint32_t subscribe = 2;
constexpr std::uint32_t event = 0x80000000U; // or-ed with the kind of the event

std::string message(std::uint32_t kind, std::string_view content) {
    std::string text(magic);
    const std::uint32_t numbers[] = {static_cast<std::uint32_t>(content.size()), kind};
    text.append(reinterpret_cast<const char*>(numbers), sizeof(numbers));
    return text.append(content);
}

FileDescriptor connected(std::string_view path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof(address.sun_path)) {
        return {};
    }
    std::copy(path.begin(), path.end(), address.sun_path);
    FileDescriptor file(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const bool reached =
        file.isOpen() &&
        ::connect(file.number(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
    return reached ? std::move(file) : FileDescriptor();
}

bool tellsOfFocus(std::string_view content) {
    const auto json = nlohmann::json::parse(content, nullptr, false);
    return json.is_object() && json.value("change", std::string()) == "focus";
}

class Subscription final : public SwayFocus {
public:
    Subscription(FileDescriptor file, std::function<void()> moved)
        : file_(std::move(file)), moved_(std::move(moved)), readable_(file_.number(), QSocketNotifier::Read) {
        QObject::connect(&readable_, &QSocketNotifier::activated, &readable_, [this] { read(); });
    }

private:
    void read() {
        char block[4096];
        const auto count = ::recv(file_.number(), block, sizeof(block), MSG_DONTWAIT);
        if (count <= 0) {
            readable_.setEnabled(false);
            return;
        }
        received_.append(block, static_cast<std::size_t>(count));
        if (takeMessages()) {
            const auto moved = moved_; // a copy: calling it may end this object
            moved();
        }
    }

    // Whether any of them tells of the focus.
    bool takeMessages() {
        bool told = false;
        while (received_.size() >= headSize) {
            std::uint32_t numbers[2];
            std::memcpy(numbers, received_.data() + magic.size(), sizeof(numbers));
            if (received_.size() < headSize + numbers[0]) {
                break;
            }
            const std::string_view content(received_.data() + headSize, numbers[0]);
            told = told || ((numbers[1] & event) != 0 && tellsOfFocus(content));
            received_.erase(0, headSize + numbers[0]);
        }
        return told;
    }

    FileDescriptor file_;
    std::function<void()> moved_;
    std::string received_; // and not yet understood
    QSocketNotifier readable_;
};

} // namespace

std::unique_ptr<SwayFocus> SwayFocus::watch(std::function<void()> moved) {
    auto file = connected(qgetenv("SWAYSOCK").toStdString());
    const auto request = message(subscribe, R"(["window","workspace"])");
    if (!file.isOpen() || ::send(file.number(), request.data(), request.size(), MSG_NOSIGNAL) !=
                              static_cast<ssize_t>(request.size())) {
        return nullptr;
    }
    return std::make_unique<Subscription>(std::move(file), std::move(moved));
}

} // namespace quelby::app
