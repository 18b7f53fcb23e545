#include "limiter/program/kernel_wakeups.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstring>
#include <string>
#include <string_view>

#include <linux/netlink.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include "limiter/files/shared_config.h"

namespace quelby::limiter {

namespace {

// The kernel may wake the helper so much later, together with others.
constexpr unsigned long timerSlack = 500'000'000; // nanoseconds

// However much is said at once, so much of it is listened to at a time.
constexpr int mostReads = 64;

FileDescriptor openSignals() {
    sigset_t signals{};
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
    return FileDescriptor(::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
}

FileDescriptor openKernelMessages() {
    FileDescriptor socket(
        ::socket(AF_NETLINK, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_KOBJECT_UEVENT));
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = 1; // the kernel's own
    const auto* const where = reinterpret_cast<const sockaddr*>(&address);
    const bool isBound = socket.isOpen() && ::bind(socket.number(), where, sizeof address) == 0;
    return isBound ? std::move(socket) : FileDescriptor();
}

// "change@/devices/...", and then NAME=VALUE, each with a zero at its end.
bool isAboutPower(std::string_view message) {
    constexpr std::string_view subsystem("\0SUBSYSTEM=power_supply\0", 24);
    return message.find(subsystem) != std::string_view::npos;
}

} // namespace

KernelWakeups::KernelWakeups() : signals_(openSignals()), kernel_(openKernelMessages()) {
    ::prctl(PR_SET_TIMERSLACK, timerSlack, 0, 0, 0);
}

void KernelWakeups::watch(const Folder& folder) {
    folder_ = FileDescriptor(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
    // The folder that is held open, wherever its path leads by now.
    const auto path = "/proc/self/fd/" + std::to_string(folder.number());
    constexpr unsigned written = IN_CLOSE_WRITE | IN_MOVED_TO | IN_DELETE_SELF | IN_ONLYDIR;
    if (folder_.isOpen() && ::inotify_add_watch(folder_.number(), path.c_str(), written) < 0) {
        folder_.close();
    }
}

Wake KernelWakeups::wait(double seconds, bool listens) {
    // poll() passes over what is not open.
    std::array<pollfd, 3> sources{{{signals_.number(), POLLIN, 0},
                                   {listens ? kernel_.number() : -1, POLLIN, 0},
                                   {listens ? folder_.number() : -1, POLLIN, 0}}};
    const auto milliseconds = static_cast<int>(std::ceil(std::clamp(seconds, 0.0, 3600.0) * 1000));
    if (::poll(sources.data(), sources.size(), milliseconds) <= 0) {
        return Wake::time;
    }
    if (sources[0].revents != 0) {
        return Wake::stop;
    }
    const bool power = sources[1].revents != 0 && hearKernel();
    const bool config = sources[2].revents != 0 && hearFolder();
    return power || config ? Wake::change : Wake::noise;
}

bool KernelWakeups::hearKernel() const {
    bool isAboutOurs = false;
    std::array<char, 8192> message{}; // longer ones do not exist
    for (int count = 0; count < mostReads; ++count) {
        sockaddr_nl sender{};
        socklen_t length = sizeof sender;
        const auto size = ::recvfrom(kernel_.number(), message.data(), message.size(), 0,
                                     reinterpret_cast<sockaddr*>(&sender), &length);
        if (size < 0 && errno == ENOBUFS) {
            isAboutOurs = true; // some messages were lost
            continue;
        }
        if (size < 0) {
            break;
        }
        const bool isTheKernels = length == sizeof sender && sender.nl_pid == 0;
        isAboutOurs =
            isAboutOurs || (isTheKernels && isAboutPower({message.data(), static_cast<std::size_t>(size)}));
    }
    return isAboutOurs;
}

bool KernelWakeups::hearFolder() const {
    bool isAboutConfig = false;
    alignas(inotify_event) std::array<char, 4096> events{};
    for (int count = 0; count < mostReads; ++count) {
        const auto size = ::read(folder_.number(), events.data(), events.size());
        for (ssize_t position = 0; position < size;) {
            inotify_event event{};
            const char* const start = events.data() + position;
            std::memcpy(&event, start, sizeof event);
            const char* const name = start + sizeof event;
            const bool somethingWasLost = (event.mask & (IN_Q_OVERFLOW | IN_DELETE_SELF)) != 0;
            isAboutConfig = isAboutConfig || somethingWasLost ||
                            (event.len > 0 && std::string_view(name) == SharedConfig::name);
            position += static_cast<ssize_t>(sizeof event + event.len);
        }
        if (size <= 0) {
            break;
        }
    }
    return isAboutConfig;
}

bool KernelWakeups::forgetFolder() {
    return folder_.isOpen() && hearFolder();
}

} // namespace quelby::limiter
