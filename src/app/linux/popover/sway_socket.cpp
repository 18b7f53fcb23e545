#include "app/linux/popover/sway_socket.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace quelby::app {

namespace {

// Six letters, the length of what follows and its kind, both in the machine's order.
constexpr std::string_view magic = "i3-ipc";
constexpr std::size_t headSize = magic.size() + 2 * sizeof(std::uint32_t);
constexpr std::uint32_t event = 0x80000000U; // or-ed with the kind of the event

std::string written(std::uint32_t kind, std::string_view content) {
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

} // namespace

std::unique_ptr<SwaySocket> SwaySocket::connect() {
    const char* const path = std::getenv("SWAYSOCK");
    auto file = path == nullptr ? FileDescriptor() : connected(path);
    return file.isOpen() ? std::make_unique<SwaySocket>(std::move(file)) : nullptr;
}

bool SwaySocket::send(Request request, std::string_view content) {
    const auto text = written(static_cast<std::uint32_t>(request), content);
    return ::send(file_.number(), text.data(), text.size(), MSG_NOSIGNAL) ==
           static_cast<ssize_t>(text.size());
}

std::string SwaySocket::ask(Request request, int patience) {
    if (!send(request, {})) {
        return {};
    }
    pollfd waiting{.fd = file_.number(), .events = POLLIN, .revents = 0};
    while (::poll(&waiting, 1, patience) > 0 && receive()) {
        if (auto answer = next()) {
            return std::move(answer->content);
        }
    }
    return {};
}

bool SwaySocket::receive() {
    char block[4096];
    const auto count = ::recv(file_.number(), block, sizeof(block), MSG_DONTWAIT);
    if (count > 0) {
        received_.append(block, static_cast<std::size_t>(count));
    }
    return count > 0;
}

std::optional<SwaySocket::Message> SwaySocket::next() {
    if (received_.size() < headSize) {
        return std::nullopt;
    }
    std::uint32_t numbers[2];
    std::memcpy(numbers, received_.data() + magic.size(), sizeof(numbers));
    if (received_.size() - headSize < numbers[0]) {
        return std::nullopt;
    }
    Message message{.isEvent = (numbers[1] & event) != 0, .content = received_.substr(headSize, numbers[0])};
    received_.erase(0, headSize + numbers[0]);
    return message;
}

} // namespace quelby::app
