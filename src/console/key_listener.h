#pragma once

#include <functional>
#include <string_view>

#include <QObject>
#include <QSocketNotifier>

namespace quelby {

// What is typed, as ordinary calls in the run loop: the bytes that a terminal sends, as they come.
class KeyListener {
public:
    // Reads standard input only while it listens: from the background, reading would stop the program.
    KeyListener(bool listening, std::function<void(std::string_view bytes)> listener);

    void listen(bool listening);

private:
    void deliver();

    std::function<void(std::string_view)> listener_;
    QSocketNotifier notifier_;
};

} // namespace quelby
