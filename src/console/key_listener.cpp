#include "console/key_listener.h"

#include <array>

#include <unistd.h>

namespace quelby {

KeyListener::KeyListener(bool listening, std::function<void(std::string_view bytes)> listener)
    : listener_(std::move(listener)), notifier_(STDIN_FILENO, QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { deliver(); });
    listen(listening);
}

void KeyListener::listen(bool listening) {
    notifier_.setEnabled(listening);
}

void KeyListener::deliver() {
    std::array<char, 64> bytes{};
    const auto count = ::read(STDIN_FILENO, bytes.data(), bytes.size());
    if (count <= 0) {
        listen(false); // the terminal is gone
        return;
    }
    listener_({bytes.data(), static_cast<std::size_t>(count)});
}

} // namespace quelby
