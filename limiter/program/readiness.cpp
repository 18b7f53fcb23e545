#include "limiter/program/readiness.h"

#include <cstddef>
#include <cstdlib>
#include <string_view>

#include <sys/socket.h>
#include <sys/un.h>

#include "platform/posix/file_descriptor.h"

namespace quelby::limiter {

void tellReadiness() {
    const char* const where = std::getenv("NOTIFY_SOCKET");
    const std::string_view path = where == nullptr ? "" : where;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() < 2 || path.size() >= sizeof address.sun_path) {
        return;
    }
    path.copy(address.sun_path, path.size());
    if (path.front() == '@') {
        address.sun_path[0] = '\0'; // a name of the kernel's and not of a file
    }
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    constexpr std::string_view message = "READY=1";
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + path.size());
    static_cast<void>(::sendto(socket.number(), message.data(), message.size(), MSG_NOSIGNAL,
                               reinterpret_cast<const sockaddr*>(&address), length));
}

} // namespace quelby::limiter
