#include "app/macos/quick_dashboard.h"

#include <utility>

#include <QKeyEvent>

#include "ui/presentation/metrics.h"
#include "ui/presentation/words.h"

namespace quelby::app {

QuickDashboard::QuickDashboard(ModelMaker makeModel, std::function<void()> leave)
    : makeModel_(std::move(makeModel)), leave_(std::move(leave)) {
    setTitle(QString::fromUtf8(words::program));
    resize(viewWidth, viewHeight);
}

QuickDashboard::~QuickDashboard() {
    if (view_) {
        view_->item().setParentItem(nullptr);
    }
}

void QuickDashboard::make(Appearance appearance) {
    model_ = makeModel_();
    view_ = std::make_unique<DashboardView>(*model_, appearance);
    view_->item().setParentItem(contentItem());
}

void QuickDashboard::open(Appearance appearance) {
    if (!view_) {
        make(appearance);
    }
    setAppearance(appearance);
    view_->showSettings(false);
    view_->setWatched(true);
    view_->item().forceActiveFocus();
    show();
}

void QuickDashboard::setAppearance(Appearance appearance) {
    view_->setAppearance(appearance);
}

void QuickDashboard::showSettings() {
    view_->showSettings(true);
}

void QuickDashboard::shut() {
    hide();
    if (view_) {
        view_->setWatched(false);
    }
}

void QuickDashboard::keyPressEvent(QKeyEvent* event) {
    QQuickWindow::keyPressEvent(event);
    if (!event->isAccepted() && event->key() == Qt::Key_Escape) {
        leave_();
    }
}

} // namespace quelby::app
