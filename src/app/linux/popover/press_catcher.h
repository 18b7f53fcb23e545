#pragma once

#include <functional>
#include <optional>

#include <QWindow>

namespace quelby::app {

// A window that nobody sees and that tells of every press and touch in it.
class PressCatcher final : public QWindow {
public:
    // The listeners may end this object: they are called when nothing of it is in use any more.
    explicit PressCatcher(
        std::function<void()> pressed, std::function<void(QPointF place)> entered = [](QPointF) {});

protected:
    bool event(QEvent* event) override;

private:
    std::function<void()> pressed_;
    std::function<void(QPointF place)> entered_; // by the pointer, in this window's points
};

} // namespace quelby::app
