#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/file_descriptor.h"

namespace quelby::app {

// Sway's own way to be asked and to tell (sway-ipc(7)).
class SwaySocket {
public:
    enum class Request : std::uint32_t { workspaces = 1, subscribe = 2, outputs = 3 };

    struct Message {
        bool isEvent = false; // and not an answer
        std::string content;  // JSON
    };

    // Nothing on other desktops.
    [[nodiscard]] static std::unique_ptr<SwaySocket> connect();

    explicit SwaySocket(FileDescriptor file) : file_(std::move(file)) {}

    // Readable when something has come, and when Sway is gone.
    [[nodiscard]] int file() const { return file_.number(); }

    [[nodiscard]] bool send(Request request, std::string_view content);

    // The answer; empty where it does not come within so many milliseconds.
    [[nodiscard]] std::string ask(Request request, int patience);

    // Takes in what has come by now. False when Sway is gone.
    [[nodiscard]] bool receive();

    // What of that is whole, one after the other.
    [[nodiscard]] std::optional<Message> next();

private:
    FileDescriptor file_;
    std::string received_; // and not yet understood
};

} // namespace quelby::app
