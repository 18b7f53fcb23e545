#include "app/linux/popover/popover_window.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include "app/linux/popover/popover_place.h"
#include "ui/presentation/text/words.h"

namespace quelby::app {

namespace {

// A program of Wayland is told of nothing outside its own windows.
bool seesWholeScreen() {
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

QRect nativeGeometry(const QScreen& screen) {
    return {screen.geometry().topLeft(), screen.geometry().size() * screen.devicePixelRatio()};
}

QScreen& screenOf(std::optional<QPoint> pixel) {
    for (auto* const screen : QGuiApplication::screens()) {
        if (pixel && nativeGeometry(*screen).contains(*pixel)) {
            return *screen;
        }
    }
    return *QGuiApplication::primaryScreen();
}

// Qt keeps a screen's corner where the system has it, and counts from there in points.
QPoint inPoints(QPoint pixel, const QScreen& screen) {
    const QPoint corner = screen.geometry().topLeft();
    return corner + (pixel - corner) / screen.devicePixelRatio();
}

} // namespace

// Escape closes it, unless something in it has a use for the key.
class PopoverWindow::Window final : public QQuickWindow {
public:
    explicit Window(PopoverWindow& popover) : popover_(popover) {}

protected:
    void keyPressEvent(QKeyEvent* event) override {
        QQuickWindow::keyPressEvent(event);
        if (!event->isAccepted() && event->key() == Qt::Key_Escape) {
            popover_.listener_.left();
        }
    }

    // Where no press outside can be seen, the focus that goes elsewhere has to do.
    void focusOutEvent(QFocusEvent* event) override {
        QQuickWindow::focusOutEvent(event);
        if (!popover_.presses_ && popover_.form_ == PopoverForm::atTheItem) {
            popover_.listener_.left();
        }
    }

    void closeEvent(QCloseEvent* event) override {
        QQuickWindow::closeEvent(event);
        popover_.listener_.closedByFrame();
    }

private:
    PopoverWindow& popover_;
};

PopoverWindow::PopoverWindow(const PopoverParts& parts, PopoverForm form, Listener listener)
    : form_(form)
    , listener_(std::move(listener))
    , model_(parts.monitor, *parts.clock,
             ProgramActions{.quit = parts.quit, .openBatterySettings = parts.openBatterySettings})
    , view_(model_, parts.appearance())
    , window_(std::make_unique<Window>(*this)) {
    window_->setTitle(QString::fromUtf8(words::program));
    const QSize size = view_.item().size().toSize();
    window_->setMinimumSize(size);
    window_->setMaximumSize(size);
    view_.item().setParentItem(window_->contentItem());
}

PopoverWindow::~PopoverWindow() {
    presses_.reset();
    view_.item().setParentItem(nullptr);
}

void PopoverWindow::show(std::optional<QPoint> itemPlace) {
    view_.setWatched(true);
    if (form_ == PopoverForm::atTheItem) {
        window_->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        placeAt(itemPlace);
        presses_ = seesWholeScreen()
                       ? OutsidePresses::watch([this](QPoint where) { pressedSomewhere(where); })
                       : nullptr;
    } else {
        window_->setFlags(Qt::Window);
    }
    window_->show();
    window_->raise();
    window_->requestActivate();
    view_.item().forceActiveFocus();
}

void PopoverWindow::placeAt(std::optional<QPoint> itemPlace) {
    const auto& screen = screenOf(itemPlace);
    const auto item = itemPlace ? std::optional(inPoints(*itemPlace, screen)) : std::nullopt;
    window_->setScreen(const_cast<QScreen*>(&screen));
    window_->setPosition(
        popoverPlace(item, {screen.geometry(), screen.availableGeometry()}, window_->minimumSize()));
}

void PopoverWindow::hide() {
    presses_.reset();
    window_->hide();
    view_.setWatched(false);
}

void PopoverWindow::pressedSomewhere(QPoint where) const {
    const QRect inside(window_->position(), window_->size());
    if (!inside.contains(inPoints(where, screenOf(where)))) {
        listener_.pressedOutside(where);
    }
}

} // namespace quelby::app
