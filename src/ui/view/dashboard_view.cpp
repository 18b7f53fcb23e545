#include "ui/view/dashboard_view.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlExtensionPlugin>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include "ui/view/accent.h"

Q_IMPORT_QML_PLUGIN(QuelbyPlugin)
Q_IMPORT_QML_PLUGIN(Quelby_BridgePlugin)

namespace quelby {

namespace {

// The program's own files: without them there is nothing to go on with.
void failIfBroken(const QQmlComponent& component) {
    if (component.isError()) {
        qFatal("%s", qPrintable(component.errorString()));
    }
}

bool isBlurred(const Appearance& appearance) {
    return appearance.backdrop == Backdrop::blurred;
}

bool isMaterial(const Appearance& appearance) {
    return appearance.backdrop == Backdrop::material;
}

// Clear where the desktop has none.
QColor accentOf(const Appearance& appearance) {
    return appearance.accent ? QColor::fromRgb(accentBelowWhite(*appearance.accent, appearance.contrast))
                             : QColor(Qt::transparent);
}

std::unique_ptr<QQuickItem> makeItem(QQmlComponent& component, DashboardModel& model, Appearance appearance) {
    auto* const object =
        component.createWithInitialProperties({{QStringLiteral("dashboard"), QVariant::fromValue(&model)},
                                               {QStringLiteral("dark"), appearance.dark},
                                               {QStringLiteral("animated"), appearance.animated},
                                               {QStringLiteral("contrast"), appearance.contrast},
                                               {QStringLiteral("accent"), accentOf(appearance)},
                                               {QStringLiteral("textScale"), appearance.textScale},
                                               {QStringLiteral("blurred"), isBlurred(appearance)},
                                               {QStringLiteral("material"), isMaterial(appearance)}});
    failIfBroken(component);
    QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
    return std::unique_ptr<QQuickItem>(qobject_cast<QQuickItem*>(object));
}

} // namespace

void drawWithoutGpu() {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

DashboardView::DashboardView(DashboardModel& model, Appearance appearance) : model_(model) {
    QQmlEngine::setObjectOwnership(&model, QQmlEngine::CppOwnership);
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine_, QUrl(QStringLiteral("qrc:/qt/qml/Quelby/ContentView.qml")));
    failIfBroken(component);
    item_ = makeItem(component, model, appearance);
    QAccessible::installActivationObserver(this);
    accessibilityActiveChanged(QAccessible::isActive());
}

DashboardView::~DashboardView() {
    QAccessible::removeActivationObserver(this);
    model_.setWatched(false);
}

void DashboardView::accessibilityActiveChanged(bool active) {
    model_.setReadOut(active);
}

void DashboardView::setWatched(bool watched) {
    model_.setWatched(watched);
}

void DashboardView::setAppearance(Appearance appearance) {
    item_->setProperty("dark", appearance.dark);
    item_->setProperty("animated", appearance.animated);
    item_->setProperty("contrast", appearance.contrast);
    item_->setProperty("accent", accentOf(appearance));
    item_->setProperty("textScale", appearance.textScale);
    item_->setProperty("blurred", isBlurred(appearance));
    item_->setProperty("material", isMaterial(appearance));
}

void DashboardView::setFrame(ViewFrame frame) {
    item_->setProperty("edged", frame != ViewFrame::none);
    item_->setProperty("rounded", frame == ViewFrame::rounded);
}

void DashboardView::showSettings(bool shown) {
    item_->setProperty("showSettings", shown);
}

void DashboardView::showEnergy(bool shown) {
    item_->setProperty("showEnergy", shown);
}

void DashboardView::scrollTo(double top) {
    QMetaObject::invokeMethod(item_.get(), "scrollTo", Q_ARG(double, top));
}

} // namespace quelby
