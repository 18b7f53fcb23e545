// A bus that hangs: it takes connections, and never says a word.
#pragma once

#include <algorithm>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "platform/posix/file_descriptor.h"
#include "support/temporary_folder.h"

namespace quelby {

class SilentBus {
public:
    enum class Accepts { everybody, nobody };

    explicit SilentBus(Accepts accepts = Accepts::everybody) { listen(accepts); }

    // In the place of another bus, until this one goes.
    explicit SilentBus(std::filesystem::path path) : path_(std::move(path)) { listen(Accepts::everybody); }

    SilentBus(const SilentBus&) = delete;
    SilentBus& operator=(const SilentBus&) = delete;

    ~SilentBus() { ::unlink(path_.c_str()); }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    [[nodiscard]] std::string address() const { return "unix:path=" + path_.string(); }

private:
    void listen(Accepts accepts) {
        sockaddr_un name{.sun_family = AF_UNIX, .sun_path = {}};
        const auto& text = path_.native();
        std::copy(text.begin(), text.end(), name.sun_path);
        ::unlink(path_.c_str()); // which another bus may have left
        EXPECT_EQ(::bind(socket_.number(), reinterpret_cast<const sockaddr*>(&name), sizeof name), 0);
        // The kernel takes connections for whoever listens, as many as are named here.
        EXPECT_EQ(::listen(socket_.number(), accepts == Accepts::everybody ? 100 : 0), 0);
    }

    TemporaryFolder folder_;
    std::filesystem::path path_ = folder_.path() / "bus";
    FileDescriptor socket_{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
};

} // namespace quelby
