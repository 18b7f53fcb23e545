#include "app/linux/session/bus_silence.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <string>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include "platform/posix/file_descriptor.h"

namespace quelby::app {

namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr auto patienceWithTheSession = 500ms;
constexpr const char* variable = "DBUS_SESSION_BUS_ADDRESS";

// The first words of a client, to which the bus says how one can log in, and nothing comes of it.
constexpr auto greeting = "\0AUTH\r\n"sv;

// Takes what stands before the separator, and leaves what stands behind it.
std::string_view take(std::string_view& text, char separator) {
    const auto end = std::min(text.find(separator), text.size());
    const auto taken = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return taken;
}

std::string unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned char byte = 0;
        if (text[i] == '%' && text.size() - i > 2 &&
            std::from_chars(&text[i + 1], &text[i] + 3, byte, 16).ptr == &text[i] + 3) {
            plain += static_cast<char>(byte);
            i += 2;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

std::string busOfTheUser() {
    const char* const folder = std::getenv("XDG_RUNTIME_DIR");
    return folder == nullptr ? "" : folder + "/bus"s;
}

// The socket's name, one in the abstract name space with its null byte. Nothing for another kind of address.
std::optional<std::string> socketName(std::string_view entry) {
    if (take(entry, ':') != "unix") {
        return std::nullopt;
    }
    while (!entry.empty()) {
        auto value = take(entry, ',');
        const auto key = take(value, '=');
        if (key == "path") {
            return unescaped(value);
        }
        if (key == "abstract") {
            return '\0' + unescaped(value);
        }
        if (key == "runtime" && value == "yes") {
            return busOfTheUser();
        }
    }
    return std::nullopt;
}

enum class Outcome { notThere, silent, answering };

Outcome greet(const std::string& name, std::chrono::milliseconds patience) {
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    if (name.empty() || name.size() >= sizeof address.sun_path) {
        return Outcome::notThere;
    }
    std::copy(name.begin(), name.end(), address.sun_path);
    const auto end = name.front() == '\0' ? name.size() : name.size() + 1; // a path has its null byte as well
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + end);
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (::connect(socket.number(), reinterpret_cast<const sockaddr*>(&address), length) != 0) {
        return errno == EAGAIN ? Outcome::silent : Outcome::notThere; // so many wait for it already
    }
    static_cast<void>(::send(socket.number(), greeting.data(), greeting.size(), MSG_NOSIGNAL));
    pollfd answer{.fd = socket.number(), .events = POLLIN, .revents = 0};
    return ::poll(&answer, 1, static_cast<int>(patience.count())) > 0 ? Outcome::answering : Outcome::silent;
}

} // namespace

bool isSilent(std::string_view address, std::chrono::milliseconds patience) {
    while (!address.empty()) {
        const auto name = socketName(take(address, ';'));
        if (const auto outcome = name ? greet(*name, patience) : Outcome::notThere;
            outcome != Outcome::notThere) {
            return outcome == Outcome::silent;
        }
    }
    return false;
}

bool sessionBusIsSilent() {
    return isSilent(HiddenSessionBus::address().toStdString(), patienceWithTheSession);
}

HiddenSessionBus::HiddenSessionBus() {
    if (qEnvironmentVariableIsSet(variable)) {
        told_ = qgetenv(variable);
    }
    qputenv(variable, "unix:path=/nonexistent");
}

HiddenSessionBus::~HiddenSessionBus() {
    if (told_) {
        qputenv(variable, *told_);
    } else {
        qunsetenv(variable);
    }
}

QString HiddenSessionBus::address() {
    return qEnvironmentVariable(variable, QString::fromStdString("unix:path=" + busOfTheUser()));
}

} // namespace quelby::app
