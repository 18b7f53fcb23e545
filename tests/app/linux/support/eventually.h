#pragma once

#include <chrono>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace quelby {

// Runs the event loop until the condition holds. False where that takes far longer than anything here does.
template <typename Condition>
[[nodiscard]] bool eventually(const Condition& condition) {
    using namespace std::chrono_literals;
    const QDeadlineTimer patience(30s);
    QTimer glance; // at what no event tells of
    glance.start(5ms);
    while (!condition()) {
        if (patience.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace quelby
