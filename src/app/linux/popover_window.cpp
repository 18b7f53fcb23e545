#include "app/linux/popover_window.h"

#include <chrono>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <malloc.h>

#include "app/linux/popover_place.h"
#include "ui/presentation/words.h"

namespace quelby::app {

namespace {

using namespace std::chrono_literals;

constexpr auto keptAfterClosing = 60s;

// A press that closes the popover from outside reaches the item afterwards; hosts take their time.
constexpr qint64 samePressMilliseconds = 500;
constexpr int samePressPixels = 32;

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
            popover_.close();
        }
    }

    // Where no press outside can be seen, the focus that goes elsewhere has to do.
    void focusOutEvent(QFocusEvent* event) override {
        QQuickWindow::focusOutEvent(event);
        if (!popover_.presses_ && popover_.form_ == PopoverForm::atTheItem) {
            popover_.close();
        }
    }

    void closeEvent(QCloseEvent* event) override {
        QQuickWindow::closeEvent(event);
        popover_.close();
        if (popover_.form_ == PopoverForm::ordinary) {
            popover_.parts_.ordinaryClosed();
        }
    }

private:
    PopoverWindow& popover_;
};

PopoverWindow::PopoverWindow(DashboardWindowParts parts) : parts_(std::move(parts)) {
    givingBack_.setSingleShot(true);
    givingBack_.setInterval(keptAfterClosing);
    QObject::connect(&givingBack_, &QTimer::timeout, &givingBack_, [this] { giveBack(); });
}

PopoverWindow::~PopoverWindow() {
    giveBack();
}

QQuickWindow* PopoverWindow::window() const {
    return window_.get();
}

bool PopoverWindow::isShown() const {
    return window_ && window_->isVisible();
}

void PopoverWindow::make() {
    model_ = std::make_unique<DashboardModel>(
        parts_.monitor, *parts_.clock,
        DashboardActions{.quit = parts_.quit, .openBatterySettings = parts_.openBatterySettings});
    view_ = std::make_unique<DashboardView>(*model_, parts_.appearance());
    window_ = std::make_unique<Window>(*this);
    window_->setTitle(QString::fromUtf8(words::program));
    const QSize size = view_->item().size().toSize();
    window_->setMinimumSize(size);
    window_->setMaximumSize(size);
    view_->item().setParentItem(window_->contentItem());
}

void PopoverWindow::giveBack() {
    givingBack_.stop();
    presses_.reset();
    if (!view_) {
        return;
    }
    view_->item().setParentItem(nullptr);
    window_.reset();
    view_.reset();
    model_.reset();
    malloc_trim(0); // what the allocator would keep for the next opening
}

void PopoverWindow::setForm(PopoverForm form) {
    if (form != form_) {
        close();
        giveBack();
        form_ = form;
    }
}

void PopoverWindow::show() {
    givingBack_.stop();
    if (!window_) {
        make();
    }
    view_->showSettings(false);
    view_->setWatched(true);
    if (form_ == PopoverForm::atTheItem) {
        window_->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        place();
        presses_ = seesWholeScreen()
                       ? OutsidePresses::watch([this](QPoint where) { pressedSomewhere(where); })
                       : nullptr;
    } else {
        window_->setFlags(Qt::Window);
    }
    window_->show();
    window_->raise();
    window_->requestActivate();
    view_->item().forceActiveFocus();
}

void PopoverWindow::showSettings() {
    show();
    view_->showSettings(true);
}

void PopoverWindow::place() {
    const auto& screen = screenOf(itemPlace_);
    const auto item = itemPlace_ ? std::optional(inPoints(*itemPlace_, screen)) : std::nullopt;
    window_->setScreen(const_cast<QScreen*>(&screen));
    window_->setPosition(
        popoverPlace(item, {screen.geometry(), screen.availableGeometry()}, window_->minimumSize()));
}

void PopoverWindow::close() {
    if (!isShown()) {
        return;
    }
    presses_.reset();
    window_->hide();
    view_->setWatched(false);
    givingBack_.start();
}

void PopoverWindow::pressedSomewhere(QPoint where) {
    const QRect inside(window_->position(), window_->size());
    if (inside.contains(inPoints(where, screenOf(where)))) {
        return;
    }
    closingPress_ = where;
    sinceClosingPress_.start();
    close();
}

bool PopoverWindow::closedByThisPress(std::optional<QPoint> place) const {
    if (!closingPress_ || sinceClosingPress_.elapsed() > samePressMilliseconds) {
        return false;
    }
    return !place || (*place - *closingPress_).manhattanLength() <= samePressPixels;
}

void PopoverWindow::appearanceChanged() {
    if (view_) {
        view_->setAppearance(parts_.appearance());
    }
}

} // namespace quelby::app
