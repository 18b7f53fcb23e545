#include "app/linux/popover/popover_window.h"

#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>

#include "app/linux/popover/window_blur.h"
#include "app/linux/popover/x_window_hints.h"
#include "app/linux/session/window_system.h"
#include "ui/presentation/elements/metrics.h"
#include "ui/presentation/text/words.h"

namespace quelby::app {

namespace {

using namespace std::chrono_literals;

// The focus comes back from a question for the password, and from whatever only held the keyboard a moment.
constexpr auto focusMayComeBack = 50ms;

constexpr int lowestOrdinaryWindow = 240; // points
constexpr int frameOfAWindow = 48;        // points, with some air
constexpr double cornerRadius = 10;       // points, of the dashboard's own edge
constexpr int iconSide = 64;              // pixels

QIcon programIcon() {
    QPixmap picture(iconSide, iconSide);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(QStringLiteral(":/symbols/quelby.svg")).render(&painter);
    painter.end();
    return {picture};
}

QSurfaceFormat withTransparency(QSurfaceFormat format) {
    format.setAlphaBufferSize(8);
    return format;
}

} // namespace

// Escape closes it, unless something in it has a use for the key.
class PopoverWindow::Window final : public QQuickWindow {
public:
    explicit Window(PopoverWindow& popover) : popover_(popover) {}

protected:
    // On its way out nothing in it can be pressed any more.
    bool event(QEvent* event) override {
        const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin;
        return (press && popover_.leaving_) || QQuickWindow::event(event);
    }

    void keyPressEvent(QKeyEvent* event) override {
        QQuickWindow::keyPressEvent(event);
        if (!event->isAccepted() && event->key() == Qt::Key_Escape) {
            popover_.listener_.left();
        }
    }

    void focusInEvent(QFocusEvent* event) override {
        QQuickWindow::focusInEvent(event);
        popover_.hasHadFocus_ = true;
        popover_.focusAway_.stop();
    }

    void focusOutEvent(QFocusEvent* event) override {
        QQuickWindow::focusOutEvent(event);
        if (popover_.hasHadFocus_) { // and not before it was last closed, of which a busy desktop tells late
            popover_.focusAway_.start(focusMayComeBack);
        }
    }

    void resizeEvent(QResizeEvent* event) override {
        QQuickWindow::resizeEvent(event);
        popover_.view_.item().setHeight(height());
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
    , appearance_(parts.appearance())
    , model_(parts.monitor, *parts.clock,
             ProgramActions{.quit = parts.quit, .openBatterySettings = parts.openBatterySettings})
    , view_(model_, appearance_)
    , window_(std::make_unique<Window>(*this))
    , transition_(view_.item()) {
    window_->setTitle(QString::fromUtf8(words::program));
    window_->setIcon(programIcon());
    if (form_ == PopoverForm::atTheItem) {
        window_->setFormat(withTransparency(window_->format()));
        window_->setColor(Qt::transparent);
    }
    view_.item().setParentItem(window_->contentItem());
    focusAway_.setSingleShot(true);
    QObject::connect(&focusAway_, &QTimer::timeout, &focusAway_, [this] { focusLeft(); });
}

PopoverWindow::~PopoverWindow() {
    stage_.reset();
    view_.item().setParentItem(nullptr);
}

void PopoverWindow::show(const ItemPress& press) {
    if (leaving_) {
        gone();
    }
    view_.setWatched(true);
    if (form_ == PopoverForm::ordinary) {
        showAsOrdinaryWindow();
    } else if (!stage_ || press.isNew) {
        showAtTheItem(press);
    } else {
        window_->raise();
        window_->requestActivate();
    }
    view_.item().forceActiveFocus();
}

QSize PopoverWindow::wholeView() const {
    return (QSizeF(viewWidth, viewHeight) * appearance_.textScale).toSize();
}

void PopoverWindow::showAtTheItem(const ItemPress& press) {
    stage_.reset();
    hasHadFocus_ = false;
    focusAway_.stop();
    stage_ = enterStage(
        *window_, panels_, press, wholeView(),
        {.placed = [this](QSize size, Qt::Edge panel) { placed(size, panel); },
         .itemFound = [this](QPoint pointer) { listener_.itemFound(pointer); },
         .pressedOutside = [this](std::optional<QPoint> pointer) { listener_.wentElsewhere(pointer); },
         .dismissed = [this] { listener_.left(); }});
}

void PopoverWindow::placed(QSize size, Qt::Edge panel) {
    window_->setMinimumSize(size);
    window_->setMaximumSize(size);
    window_->resize(size);
    view_.item().setHeight(size.height());
    lieOnWhatIsBehind();
    const bool seenThrough = showsTransparency();
    view_.setFrame(seenThrough ? ViewFrame::rounded : ViewFrame::straight);
    panel_ = panel;
    if (seenThrough && appearance_.animated) {
        transition_.comeIn(panel);
    } else {
        transition_.end();
    }
}

void PopoverWindow::lieOnWhatIsBehind() {
    const bool blurred = !appearance_.contrast && showsTransparency() &&
                         askForBlur(*window_, cornerRadius * appearance_.textScale);
    backdrop_ = blurred ? Backdrop::blurred : Backdrop::none;
    setAppearance(appearance_);
}

void PopoverWindow::showAsOrdinaryWindow() {
    const int room = window_->screen()->availableGeometry().height() - frameOfAWindow;
    const auto whole = wholeView();
    const QSize size(whole.width(), std::max(lowestOrdinaryWindow, std::min(whole.height(), room)));
    window_->setFlags(Qt::Window);
    window_->setMinimumSize(size); // of one size, as window managers that tile leave such a one as it is
    window_->setMaximumSize(size);
    window_->resize(size);
    window_->show();
    window_->raise();
    window_->requestActivate();
}

void PopoverWindow::hide() {
    focusAway_.stop();
    view_.setWatched(false);
    if (!stage_ || !appearance_.animated || !showsTransparency()) {
        gone();
    } else if (!leaving_) {
        leaving_ = true;
        stage_->letGo();
        transition_.goOut(panel_, [this] { gone(); });
    }
}

void PopoverWindow::gone() {
    leaving_ = false;
    transition_.end();
    stage_.reset();
    window_->hide();
}

void PopoverWindow::setAppearance(Appearance appearance) {
    appearance_ = appearance;
    appearance_.backdrop = appearance.contrast ? Backdrop::none : backdrop_;
    view_.setAppearance(appearance_);
}

void PopoverWindow::focusLeft() {
    if (isShown() && stage_ && !window_->isActive()) {
        listener_.wentElsewhere(pointerPlace(windowSystem()));
    }
}

} // namespace quelby::app
