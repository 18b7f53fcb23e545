#include "app/macos/floating_popover.h"

#include <utility>

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include "app/macos/floating_place.h"
#include "app/macos/menu_bar_application.h"
#include "app/macos/place_on_screen.h"

namespace quelby::app {

namespace {

QRect roomAt(QPoint place) {
    const auto* const screen = QGuiApplication::screenAt(place);
    return (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

// There is no material behind a window of one's own.
Appearance withoutBackdrop(Appearance appearance) {
    appearance.backdrop = Backdrop::none;
    return appearance;
}

} // namespace

FloatingPopover::FloatingPopover(NSStatusBarButton* button, PopoverContent::ModelMaker makeModel)
    : button_(button)
    , dashboard_(std::move(makeModel), [this] { close(); })
    , fade_(dashboard_, [this] { dashboard_.shut(); })
    , system_([this] { dashboard_.setAppearance(withoutBackdrop(systemAppearance())); }) {
    dashboard_.setFlags(Qt::Tool | Qt::FramelessWindowHint);
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &listener_,
                     [this](Qt::ApplicationState state) {
                         if (state != Qt::ApplicationActive) {
                             close();
                         }
                     });
}

bool FloatingPopover::isShown() const {
    return fade_.isIn();
}

QPoint FloatingPopover::corner() const {
    if (const auto place = placeBelow(button_)) {
        const QPoint below(qRound(place->x), qRound(place->y));
        return cornerBelow(below, dashboard_.width(), roomAt(below));
    }
    const auto pointer = QCursor::pos();
    return cornerBelowMenuBar(pointer, dashboard_.width(), roomAt(pointer));
}

void FloatingPopover::show() {
    if (button_ == nullptr) {
        return;
    }
    const auto appearance = withoutBackdrop(systemAppearance());
    dashboard_.setPosition(corner());
    dashboard_.prepare(appearance);
    fade_.in(appearance.animated);
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
    fade_.out(systemAppearance().animated);
}

} // namespace quelby::app
