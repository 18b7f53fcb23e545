#include "platform/qt/qt_run_loop.h"

#include <new>

#include <QPointer>
#include <QTimer>

namespace quelby {

namespace {

class QtRepeatingTimer final : public RepeatingTimer {
public:
    explicit QtRepeatingTimer(QTimer* timer) : timer_(timer) {}

    void invalidate() override {
        if (timer_ != nullptr) {
            timer_->stop();
            timer_->deleteLater(); // later, because this may be within its action
            timer_.clear();
        }
    }

private:
    QPointer<QTimer> timer_; // the run loop's; null once it is gone
};

std::function<void()> withinItsMemory(std::function<void()> action) {
    return [action = std::move(action)] {
        try {
            action();
        } catch (const std::bad_alloc&) { // must not get among Qt's own functions, which it would end
        }
    };
}

} // namespace

std::shared_ptr<RepeatingTimer> QtRunLoop::repeat(std::chrono::duration<double> interval,
                                                  std::function<void()> action) {
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(interval);
    auto* const timer = new QTimer(&owner_);
    timer->setTimerType(Qt::PreciseTimer);
    timer->callOnTimeout(withinItsMemory(std::move(action)));
    timer->start(milliseconds);
    return std::make_shared<QtRepeatingTimer>(timer);
}

void QtRunLoop::post(std::function<void()> action) {
    QMetaObject::invokeMethod(&owner_, withinItsMemory(std::move(action)), Qt::QueuedConnection);
}

} // namespace quelby
