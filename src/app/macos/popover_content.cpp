#include "app/macos/popover_content.h"

#include <utility>

#include <QKeyEvent>

#include "ui/presentation/elements/metrics.h"
#include "ui/presentation/text/words.h"

namespace quelby::app {

namespace {

// With a background that can be clear, whether it is or not: that cannot be changed later.
QSurfaceFormat withClearness(QSurfaceFormat format) {
    constexpr int bits = 8;
    format.setAlphaBufferSize(bits);
    return format;
}

} // namespace

PopoverContent::PopoverContent(ModelMaker makeModel, std::function<void()> leave,
                               std::chrono::milliseconds keptAfterShutting)
    : makeModel_(std::move(makeModel)), leave_(std::move(leave)) {
    givingBack_.setSingleShot(true);
    givingBack_.setInterval(keptAfterShutting);
    connect(&givingBack_, &QTimer::timeout, this, [this] { giveBack(); });
    setFormat(withClearness(requestedFormat()));
    setColor(Qt::transparent);
    setTitle(QString::fromUtf8(words::program));
    resize(viewWidth, viewHeight);
}

PopoverContent::~PopoverContent() {
    giveBack();
}

void PopoverContent::make(Appearance appearance) {
    model_ = makeModel_();
    view_ = std::make_unique<DashboardView>(*model_, appearance);
    view_->item().setParentItem(contentItem());
}

void PopoverContent::giveBack() {
    givingBack_.stop();
    if (view_) {
        view_->item().setParentItem(nullptr);
        view_.reset();
        model_.reset();
        releaseResources();
    }
}

void PopoverContent::prepare(Appearance appearance) {
    givingBack_.stop();
    if (!view_) {
        make(appearance);
    }
    setAppearance(appearance);
    view_->setWatched(true);
    view_->item().forceActiveFocus();
}

void PopoverContent::open(Appearance appearance) {
    prepare(appearance);
    show();
}

void PopoverContent::setAppearance(Appearance appearance) {
    if (view_) {
        view_->setAppearance(appearance);
    }
}

void PopoverContent::showSettings() {
    view_->showSettings(true);
}

void PopoverContent::shut() {
    hide();
    if (view_) {
        view_->setWatched(false);
        givingBack_.start();
    }
}

void PopoverContent::keyPressEvent(QKeyEvent* event) {
    QQuickWindow::keyPressEvent(event);
    if (!event->isAccepted() && event->key() == Qt::Key_Escape) {
        leave_();
    }
}

} // namespace quelby::app
