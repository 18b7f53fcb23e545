#include "app/linux/popover/plain_stage.h"

#include <QGuiApplication>
#include <QScreen>

#include "app/linux/popover/desktop_screens.h"
#include "app/linux/popover/press_catcher.h"
#include "app/linux/popover/x_window_hints.h"

namespace quelby::app {

PlainStage::PlainStage(QQuickWindow& window, EdgePanels& panels, const ItemPress& press, QSize size,
                       Listener listener)
    : window_(window)
    , listener_(std::move(listener))
    , system_(windowSystem())
    , screens_(desktopScreens(panels)) {
    window_.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    place(press, size);
    keepOutOfWindowLists(window_);
    if (system_ == WindowSystem::xWayland) {
        catchPresses();
    }
    window_.show();
    window_.raise();
    window_.requestActivate();
    watchPresses();
}

PlainStage::~PlainStage() {
    PlainStage::letGo();
    window_.hide();
}

void PlainStage::letGo() {
    presses_.reset();
    catchers_.clear();
}

void PlainStage::place(const ItemPress& press, QSize size) {
    const auto place = popoverPlace(press, screens_, size);
    window_.setScreen(QGuiApplication::screens().at(static_cast<qsizetype>(place.screen)));
    listener_.placed(place.area.size(), place.panel);
    window_.setGeometry(place.area);
    place_ = place.area.topLeft();
    for (const auto moved : {&QWindow::xChanged, &QWindow::yChanged}) {
        QObject::connect(
            &window_, moved, &moves_, [this] { insistOnPlace(); }, Qt::QueuedConnection);
    }
}

// Some window managers make room for the frame that it then does not get, and move it by as much. Once, so that
// nobody quarrels with one that knows better.
void PlainStage::insistOnPlace() {
    if (!hasInsisted_ && window_.position() != place_) {
        hasInsisted_ = true;
        window_.setPosition(place_);
    }
}

void PlainStage::watchPresses() {
    if (system_ != WindowSystem::x11 && system_ != WindowSystem::xWayland) {
        return;
    }
    presses_ = OutsidePresses::watch([this](QPoint where) {
        if (!isInside(where)) {
            listener_.pressedOutside(system_ == WindowSystem::x11 ? std::optional(where) : std::nullopt);
        }
    });
}

void PlainStage::catchPresses() {
    for (auto* const screen : QGuiApplication::screens()) {
        auto catcher = std::make_unique<PressCatcher>([this] { listener_.pressedOutside(std::nullopt); });
        catcher->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                          Qt::WindowDoesNotAcceptFocus);
        catcher->setScreen(screen);
        // As large as the screen it would count as a program in full screen, and the panels would make way.
        catcher->setGeometry(screen->availableGeometry().adjusted(0, 1, 0, 0));
        keepOutOfWindowLists(*catcher);
        keepClear(*catcher);
        catcher->show();
        catchers_.push_back(std::move(catcher));
    }
}

bool PlainStage::isInside(QPoint pixel) const {
    for (const auto& screen : screens_) {
        if (screen.pixels.contains(pixel)) {
            const QPoint corner = screen.pixels.topLeft();
            return window_.geometry().contains(corner + (pixel - corner) / screen.scale);
        }
    }
    return false;
}

} // namespace quelby::app
