#pragma once

#include <functional>

#include <QVariantAnimation>
#include <QWindow>

namespace quelby::app {

// A window's short way onto the screen and from it, where the system does not see to that.
class WindowFade {
public:
    // The window outlives this object. `gone` is called each time the window has become invisible; it is hidden
    // then.
    WindowFade(QWindow& window, std::function<void()> gone);

    // Is shown, clear at first, and becomes visible; at once where nothing is to move.
    void in(bool animated);

    // Becomes clear, and then hidden. Nothing where it is hidden, or on its way there.
    void out(bool animated);

    // Whether it is to be seen: not any more, once it is on its way out.
    [[nodiscard]] bool isIn() const { return isIn_; }

private:
    void move(double target, bool animated);
    void arrive();

    QWindow& window_;
    std::function<void()> gone_;
    QVariantAnimation opacity_;
    bool isIn_ = false;
};

} // namespace quelby::app
