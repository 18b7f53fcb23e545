#include "app/macos/popover_content.h"

#include <utility>

#include <QKeyEvent>

#include "ui/presentation/elements/metrics.h"
#include "ui/presentation/text/words.h"

namespace quelby::app {

PopoverContent::PopoverContent(ModelMaker makeModel, std::function<void()> leave)
    : makeModel_(std::move(makeModel)), leave_(std::move(leave)) {
    setTitle(QString::fromUtf8(words::program));
    resize(viewWidth, viewHeight);
}

PopoverContent::~PopoverContent() {
    if (view_) {
        view_->item().setParentItem(nullptr);
    }
}

void PopoverContent::make(Appearance appearance) {
    model_ = makeModel_();
    view_ = std::make_unique<DashboardView>(*model_, appearance);
    view_->item().setParentItem(contentItem());
}

void PopoverContent::open(Appearance appearance) {
    if (!view_) {
        make(appearance);
    }
    setAppearance(appearance);
    view_->setWatched(true);
    view_->item().forceActiveFocus();
    show();
}

void PopoverContent::setAppearance(Appearance appearance) {
    view_->setAppearance(appearance);
}

void PopoverContent::showSettings() {
    view_->showSettings(true);
}

void PopoverContent::shut() {
    hide();
    if (view_) {
        view_->setWatched(false);
    }
}

void PopoverContent::keyPressEvent(QKeyEvent* event) {
    QQuickWindow::keyPressEvent(event);
    if (!event->isAccepted() && event->key() == Qt::Key_Escape) {
        leave_();
    }
}

} // namespace quelby::app
