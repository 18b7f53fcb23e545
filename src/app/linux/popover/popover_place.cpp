#include "app/linux/popover/popover_place.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quelby::app {

namespace {

constexpr int leastPanel = 32; // points, where a panel reserves nothing
constexpr int halfAnItem = 16; // points
constexpr int nearAnEdge = 64; // points: panels are not thicker
constexpr std::array usualScales{1.25, 1.5, 1.75, 2.0, 2.5, 3.0};

struct Side {
    Qt::Edge edge;
    int distance; // of the item, in pixels
    int reserved; // in pixels
};

std::array<Side, 4> sidesOf(const DesktopScreen& screen, QPoint item) {
    const QRect& all = screen.pixels;
    const QMargins& reserved = screen.reserved;
    return {Side{Qt::TopEdge, item.y() - all.top(), reserved.top()},
            Side{Qt::BottomEdge, all.bottom() - item.y(), reserved.bottom()},
            Side{Qt::LeftEdge, item.x() - all.left(), reserved.left()},
            Side{Qt::RightEdge, all.right() - item.x(), reserved.right()}};
}

bool isInPanel(const Side& side) {
    return side.distance < side.reserved;
}

// The panel's, at which the item is. Where none has reserved the place, panels above and below are likelier
// than those at the sides.
Side panelOf(const DesktopScreen& screen, QPoint item) {
    const auto sides = sidesOf(screen, item);
    const auto likelihood = [&](const Side& side) {
        const bool likely = isHorizontal(side.edge) && side.distance < nearAnEdge * screen.scale;
        const int rank = isInPanel(side) ? 0 : (likely ? 1 : 2);
        return std::pair(rank, side.distance);
    };
    return *std::min_element(sides.begin(), sides.end(), [&](const Side& one, const Side& other) {
        return likelihood(one) < likelihood(other);
    });
}

bool isAtPanel(const DesktopScreen& screen, QPoint item) {
    const auto panel = panelOf(screen, item);
    return isInPanel(panel) || panel.distance < nearAnEdge * screen.scale;
}

std::optional<std::size_t> screenWith(QPoint pixel, const std::vector<DesktopScreen>& screens) {
    for (std::size_t i = 0; i < screens.size(); ++i) {
        if (screens[i].pixels.contains(pixel)) {
            return i;
        }
    }
    return std::nullopt;
}

QPoint scaled(QPoint point, QPoint around, double factor) {
    const QPoint away = point - around;
    return around + QPoint(qRound(away.x() * factor), qRound(away.y() * factor));
}

struct ItemPlace {
    std::size_t screen;
    QPoint pixel;
};

// Everything that could be meant, the likeliest first.
std::vector<ItemPlace> possiblePlaces(const ItemPress& press, const std::vector<DesktopScreen>& screens) {
    std::vector<ItemPlace> places;
    const auto consider = [&](QPoint pixel) {
        const auto screen = screenWith(pixel, screens);
        if (screen) {
            places.push_back({*screen, pixel});
        }
        return screen.has_value();
    };
    if (press.pointer) {
        consider(*press.pointer);
    }
    if (!press.told || press.told->isNull()) { // which hosts say where there was no pointer
        return places;
    }
    const bool onAScreen = consider(*press.told);
    for (std::size_t i = 0; i < screens.size(); ++i) { // in points of a screen
        const QPoint pixel = scaled(*press.told, screens[i].pixels.topLeft(), screens[i].scale);
        if (screens[i].scale != 1 && screens[i].pixels.contains(pixel)) {
            places.push_back({i, pixel});
        }
    }
    if (!onAScreen) { // in pixels of an output of Wayland, where programs of X11 see only its points
        for (const double scale : usualScales) {
            consider(scaled(*press.told, QPoint(), 1 / scale));
        }
    }
    return places;
}

std::optional<ItemPlace> likeliestPlace(const ItemPress& press, const std::vector<DesktopScreen>& screens) {
    const auto places = possiblePlaces(press, screens);
    const auto found = std::find_if(places.begin(), places.end(), [&](const ItemPlace& place) {
        return isAtPanel(screens[place.screen], place.pixel);
    });
    if (found != places.end()) {
        return *found;
    }
    return places.empty() ? std::nullopt : std::optional(places.front());
}

bool reservesAnything(const DesktopScreen& screen) {
    return !screen.reserved.isNull();
}

// Panels with a tray are on the main screen, if there are any on it.
std::size_t screenWithTray(const std::vector<DesktopScreen>& screens) {
    const auto main = std::find_if(screens.begin(), screens.end(), [](const auto& one) { return one.main; });
    auto chosen = main == screens.end() ? screens.begin() : main;
    if (!reservesAnything(*chosen)) {
        const auto other = std::find_if(screens.begin(), screens.end(), reservesAnything);
        chosen = other == screens.end() ? chosen : other;
    }
    return static_cast<std::size_t>(chosen - screens.begin());
}

// The end of a panel where trays are.
ItemPlace usualPlace(const std::vector<DesktopScreen>& screens) {
    const auto index = screenWithTray(screens);
    const QRect& all = screens[index].pixels;
    const QMargins& reserved = screens[index].reserved;
    if (reserved.top() > 0) {
        return {index, all.topRight()};
    }
    if (reserved.bottom() > 0 || reserved.right() > 0) {
        return {index, all.bottomRight()};
    }
    return {index, reserved.left() > 0 ? all.bottomLeft() : all.topRight()};
}

int pointsOf(int pixels, double scale) {
    return static_cast<int>(std::floor(pixels / scale));
}

// A screen in its own points, with what has to be kept free at its edges.
class Room {
public:
    explicit Room(const DesktopScreen& screen)
        : whole_(screen.pixels.topLeft(), QSize(pointsOf(screen.pixels.width(), screen.scale),
                                                pointsOf(screen.pixels.height(), screen.scale))) {
        keepFree(Qt::TopEdge, screen.reserved.top() / screen.scale);
        keepFree(Qt::BottomEdge, screen.reserved.bottom() / screen.scale);
        keepFree(Qt::LeftEdge, screen.reserved.left() / screen.scale);
        keepFree(Qt::RightEdge, screen.reserved.right() / screen.scale);
    }

    void keepFree(Qt::Edge edge, double points) {
        const int depth = static_cast<int>(std::ceil(points));
        switch (edge) {
        case Qt::TopEdge:
            kept_.setTop(std::max(kept_.top(), depth));
            break;
        case Qt::BottomEdge:
            kept_.setBottom(std::max(kept_.bottom(), depth));
            break;
        case Qt::LeftEdge:
            kept_.setLeft(std::max(kept_.left(), depth));
            break;
        case Qt::RightEdge:
            kept_.setRight(std::max(kept_.right(), depth));
            break;
        }
    }

    // In front of the item, and beside its panel. What does not fit begins at the upper left, where the header
    // and the way out are.
    [[nodiscard]] QRect beside(Qt::Edge panel, QPoint item, QSize wanted) const {
        const QRect free = whole_.marginsRemoved(kept_ + popoverGap);
        const QSize size(wanted.width(), std::max(1, std::min(wanted.height(), free.height())));
        const QPoint last(free.right() + 1 - size.width(), free.bottom() + 1 - size.height());
        const int x = panel == Qt::LeftEdge    ? free.left()
                      : panel == Qt::RightEdge ? last.x()
                                               : item.x() - size.width() / 2;
        const int y = panel == Qt::TopEdge      ? free.top()
                      : panel == Qt::BottomEdge ? last.y()
                                                : item.y() - size.height() / 2;
        const QPoint place(std::min(std::max(x, free.left()), last.x()),
                           std::min(std::max(y, free.top()), last.y()));
        return {QPoint(std::max(place.x(), whole_.left()), std::max(place.y(), whole_.top())), size};
    }

private:
    QRect whole_;
    QMargins kept_;
};

} // namespace

PopoverPlace popoverPlace(const ItemPress& press, const std::vector<DesktopScreen>& screens, QSize size) {
    const auto item = likeliestPlace(press, screens).value_or(usualPlace(screens));
    const auto& screen = screens[item.screen];
    const auto panel = panelOf(screen, item.pixel);
    Room room(screen);
    if (!isInPanel(panel)) {
        room.keepFree(panel.edge, std::max<double>(leastPanel, panel.distance / screen.scale + halfAnItem));
    }
    const QPoint corner = screen.pixels.topLeft();
    const QPoint inPoints = scaled(item.pixel, corner, 1 / screen.scale);
    return {item.screen, room.beside(panel.edge, inPoints, size), panel.edge};
}

} // namespace quelby::app
