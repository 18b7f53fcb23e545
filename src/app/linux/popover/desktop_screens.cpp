#include "app/linux/popover/desktop_screens.h"

#include <algorithm>

#include <QGuiApplication>
#include <QScreen>

namespace quelby::app {

namespace {

QRect areaOf(const Strut& strut, QSize desktop) {
    const int length = strut.last - strut.first + 1;
    switch (strut.edge) {
    case Qt::TopEdge:
        return {strut.first, 0, length, strut.depth};
    case Qt::BottomEdge:
        return {strut.first, desktop.height() - strut.depth, length, strut.depth};
    case Qt::LeftEdge:
        return {0, strut.first, strut.depth, length};
    case Qt::RightEdge:
        break;
    }
    return {desktop.width() - strut.depth, strut.first, strut.depth, length};
}

// A panel between two screens keeps all of the screen behind it as well, as far as its strut can say.
int depthOn(int kept, int whole) {
    return kept < whole / 2 ? kept : 0;
}

QMargins reservedBy(const Strut& strut, QRect screen, QSize desktop) {
    const QRect kept = areaOf(strut, desktop).intersected(screen);
    if (kept.isEmpty()) {
        return {};
    }
    switch (strut.edge) {
    case Qt::TopEdge:
        return {0, depthOn(kept.height(), screen.height()), 0, 0};
    case Qt::BottomEdge:
        return {0, 0, 0, depthOn(kept.height(), screen.height())};
    case Qt::LeftEdge:
        return {depthOn(kept.width(), screen.width()), 0, 0, 0};
    case Qt::RightEdge:
        break;
    }
    return {0, 0, depthOn(kept.width(), screen.width()), 0};
}

// What Qt knows: of a single screen what the window manager says, of several nothing.
QMargins knownToQt(const QScreen& screen, double scale) {
    const QRect whole = screen.geometry();
    const QRect available = screen.availableGeometry();
    const QMargins points(available.left() - whole.left(), available.top() - whole.top(),
                          whole.right() - available.right(), whole.bottom() - available.bottom());
    return points * scale;
}

// Qt keeps a screen's corner where the system has it, and counts from there in points.
QRect pixelsOf(const QScreen& screen, double scale) {
    const QRect points = screen.geometry();
    return {points.topLeft(), points.size() * scale};
}

} // namespace

QMargins reservedBy(const std::vector<Strut>& struts, QRect screen, QSize desktop) {
    QMargins all;
    for (const auto& strut : struts) {
        all = all | reservedBy(strut, screen, desktop);
    }
    return all;
}

std::vector<DesktopScreen> desktopScreens(EdgePanels& edgePanels) {
    const bool x11 = QGuiApplication::platformName() == QLatin1String("xcb");
    const auto panels = x11 ? panelStruts() : PanelStruts();
    const auto otherPanels = x11 ? std::vector<EdgePanel>() : edgePanels.present();
    std::vector<DesktopScreen> screens;
    for (const auto* const screen : QGuiApplication::screens()) {
        const double scale = x11 ? screen->devicePixelRatio() : 1; // elsewhere all is told in points
        const auto pixels = pixelsOf(*screen, scale);
        const auto reserved =
            reservedBy(panels.struts, pixels, panels.desktop) | reservedBy(otherPanels, pixels);
        screens.push_back({.pixels = pixels,
                           .reserved = reserved | knownToQt(*screen, scale),
                           .scale = scale,
                           .main = screen == QGuiApplication::primaryScreen()});
    }
    return screens;
}

} // namespace quelby::app
