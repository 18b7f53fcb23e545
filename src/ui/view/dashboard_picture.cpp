#include "ui/view/dashboard_picture.h"

#include <QCoreApplication>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>

#include "ui/view/dashboard_view.h"

namespace quelby {

namespace {

QImage emptyPicture(const QQuickItem& item, double scale) {
    const QSizeF size(item.width() * scale, item.height() * scale);
    QImage picture(size.toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    return picture;
}

// A window that is nowhere but in the picture.
class PictureWindow {
public:
    PictureWindow(QQuickItem& item, QImage& picture) : window_(&control_) {
        auto target = QQuickRenderTarget::fromPaintDevice(&picture);
        target.setDevicePixelRatio(picture.devicePixelRatio());
        window_.setRenderTarget(target);
        window_.setColor(Qt::transparent);
        window_.resize(qRound(item.width()), qRound(item.height()));
        window_.contentItem()->setSize(item.size());
        item.setParentItem(window_.contentItem());
    }

    // Layouts settle in events and when they are polished.
    void settle() {
        QCoreApplication::sendPostedEvents();
        control_.polishItems();
    }

    void draw() {
        control_.beginFrame();
        control_.sync();
        control_.render();
        control_.endFrame();
    }

private:
    QQuickRenderControl control_;
    QQuickWindow window_;
};

} // namespace

QImage dashboardPicture(DashboardModel& model, const PictureOptions& options) {
    DashboardView view(model, {.dark = options.dark, .animated = false});
    view.setWatched(true);
    view.showSettings(options.settings);
    view.showEnergy(options.energy);
    auto picture = emptyPicture(view.item(), options.scale);
    PictureWindow window(view.item(), picture);
    window.settle();
    view.scrollTo(options.scrolledTo);
    window.settle();
    window.draw();
    view.item().setParentItem(nullptr);
    return picture;
}

} // namespace quelby
