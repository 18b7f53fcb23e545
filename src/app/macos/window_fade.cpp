#include "app/macos/window_fade.h"

#include <utility>

namespace quelby::app {

namespace {

constexpr int milliseconds = 140;

} // namespace

WindowFade::WindowFade(QWindow& window, std::function<void()> gone)
    : window_(window), gone_(std::move(gone)) {
    opacity_.setDuration(milliseconds);
    opacity_.setEasingCurve(QEasingCurve::OutCubic);
    QObject::connect(&opacity_, &QVariantAnimation::valueChanged, &opacity_,
                     [this](const QVariant& value) { window_.setOpacity(value.toDouble()); });
    QObject::connect(&opacity_, &QVariantAnimation::finished, &opacity_, [this] { arrive(); });
}

void WindowFade::in(bool animated) {
    if (!isIn_) {
        isIn_ = true;
        if (!window_.isVisible()) {
            window_.setOpacity(0);
        }
        window_.show();
        move(1, animated);
    }
}

void WindowFade::out(bool animated) {
    if (isIn_) {
        isIn_ = false;
        move(0, animated);
    }
}

void WindowFade::move(double target, bool animated) {
    opacity_.stop();
    if (!animated) {
        window_.setOpacity(target);
        arrive();
        return;
    }
    opacity_.setStartValue(window_.opacity());
    opacity_.setEndValue(target);
    opacity_.start();
}

void WindowFade::arrive() {
    if (!isIn_) {
        window_.hide();
        gone_();
    }
}

} // namespace quelby::app
