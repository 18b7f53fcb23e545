#include "app/macos/floating_popover.h"

#include <algorithm>
#include <utility>

#include <QGuiApplication>
#include <QScreen>

#include "app/macos/menu_bar_application.h"
#include "app/macos/place_on_screen.h"

namespace quelby::app {

namespace {

// Centred at the place, and whole on its screen.
QPoint upperLeftCorner(QPoint place, int width) {
    const auto* const screen = QGuiApplication::screenAt(place);
    const QRect room = (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const int rightmost = std::max(room.left(), room.right() + 1 - width);
    return {std::clamp(place.x() - width / 2, room.left(), rightmost), place.y()};
}

} // namespace

FloatingPopover::FloatingPopover(NSStatusBarButton* button, PopoverContent::ModelMaker makeModel)
    : button_(button), dashboard_(std::move(makeModel), [this] { close(); }) {
    dashboard_.setFlags(Qt::Tool | Qt::FramelessWindowHint);
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &listener_,
                     [this](Qt::ApplicationState state) {
                         if (state != Qt::ApplicationActive) {
                             close();
                         }
                     });
}

bool FloatingPopover::isShown() const {
    return dashboard_.isVisible();
}

void FloatingPopover::show() {
    if (button_ == nullptr) {
        return;
    }
    const auto place = placeBelow(button_);
    dashboard_.setPosition(upperLeftCorner({qRound(place.x), qRound(place.y)}, dashboard_.width()));
    dashboard_.open({.dark = prefersDark(), .animated = !prefersReducedMotion()});
    activateApplication();
    dashboard_.requestActivate();
}

void FloatingPopover::showSettings() {
    show();
    if (isShown()) {
        dashboard_.showSettings();
    }
}

void FloatingPopover::close() {
    if (isShown()) {
        dashboard_.shut();
    }
}

} // namespace quelby::app
