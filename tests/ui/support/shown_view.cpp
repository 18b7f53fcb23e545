#include "ui/support/shown_view.h"

namespace quelby {

namespace {

void collect(const QQuickItem& root, const char* type, std::vector<QQuickItem*>& found) {
    for (auto* const child : root.childItems()) {
        if (!child->isVisible()) {
            continue;
        }
        if (isA(*child, type)) {
            found.push_back(child);
        }
        collect(*child, type, found);
    }
}

} // namespace

ShownView::ShownView(MadeUpDashboard& dashboard, Appearance appearance) : view_(dashboard.model, appearance) {
    view_.setWatched(true);
    window_.resize(root().size().toSize());
    root().setParentItem(window_.contentItem());
    window_.show();
    root().forceActiveFocus();
    settle();
}

ShownView::~ShownView() {
    root().setParentItem(nullptr);
}

void ShownView::showSettings(bool shown) {
    view_.showSettings(shown);
    settle();
}

void ShownView::settle() {
    finishTurn();
    static_cast<void>(picture()); // items are polished before they are drawn
    finishTurn();
}

QRectF ShownView::placeOf(const QQuickItem& item) const {
    return item.mapRectToItem(&root(), item.boundingRect());
}

bool isA(const QObject& item, const char* type) {
    const auto generated = QByteArray(type) + "_QMLTYPE";
    for (const auto* meta = item.metaObject(); meta != nullptr; meta = meta->superClass()) {
        const QByteArray name(meta->className());
        if (name == type || name == QByteArray("quelby::") + type || name.startsWith(generated)) {
            return true;
        }
    }
    return false;
}

std::vector<QQuickItem*> visibleItems(const QQuickItem& root, const char* type) {
    std::vector<QQuickItem*> found;
    collect(root, type, found);
    return found;
}

QQuickItem* enclosing(const QQuickItem& item, const char* type) {
    auto* around = item.parentItem();
    while (around != nullptr && !isA(*around, type)) {
        around = around->parentItem();
    }
    return around;
}

} // namespace quelby
